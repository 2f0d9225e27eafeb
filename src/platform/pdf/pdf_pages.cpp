// The page tree, and the resources of pages.
#include "platform/pdf/pdf_pages.h"

#include <algorithm>
#include <utility>

namespace qor {
namespace {

constexpr std::size_t kPagesOfNode = 64;

}  // namespace

PdfPages::PdfPages(ByteSink& sink, PdfInformation information)
    : information_(std::move(information)),
      file_(sink),
      images_(file_),
      font_dictionary_(file_.reserve()),
      page_tree_(file_.reserve()) {
  if (information_.tagged) structure_.emplace(file_);
}

void PdfPages::setPageSize(double width, double height) {
  width_ = width;
  height_ = height;
}

void PdfPages::beginPage() {
  content_.clear(information_.tagged);
  images_of_page_.clear();
}

std::string PdfPages::resourcesOfPage() const {
  std::string text = "<</Font " + pdfReference(font_dictionary_);
  if (!images_of_page_.empty()) {
    text += "/XObject<<";
    for (const auto& [id, name] : images_of_page_) text += "/" + name + " " + pdfReference(id);
    text += ">>";
  }
  if (pattern_dictionary_ != 0)
    text +=
        "/ColorSpace<</Hatch[/Pattern/DeviceRGB]>>/Pattern " + pdfReference(pattern_dictionary_);
  return text + ">>";
}

void PdfPages::endPage() {
  if (pages_.empty()) nodes_.push_back(file_.reserve());
  const PdfId contents = file_.addStream("", content_.bytes());
  const PdfId page = file_.addObject(
      "<</Type/Page/Parent " + pdfReference(nodes_.back()) + "/Resources" + resourcesOfPage() +
      "/Contents " + pdfReference(contents) + (structure_ ? structure_->pageEntry() : "") + ">>");
  if (structure_) structure_->addPage(page, content_.marksOfLines());
  if (page_count_++ == 0) first_page_ = page;
  pages_.push_back(page);
  if (pages_.size() == kPagesOfNode) closeNode();
}

void PdfPages::closeNode() {
  file_.writeObject(nodes_.back(), "<</Type/Pages/Parent " + pdfReference(page_tree_) + "/Count " +
                                       std::to_string(pages_.size()) + "/Kids" + pdfList(pages_) +
                                       ">>");
  pages_.clear();
}

// Archives take pages of 3 to 14,400 points a side (ISO 19005-2, 6.1.13).
bool PdfPages::fitsArchives() const {
  const auto [least, most] = std::minmax(width_, height_);
  return least >= 3 && most <= 14400;
}

void PdfPages::finish() {
  information_.archived = fitsArchives();
  if (!pages_.empty()) closeNode();
  file_.writeObject(page_tree_, "<</Type/Pages/MediaBox[" + pdfNumbers({0, 0, width_, height_}) +
                                    "]/Count " + std::to_string(page_count_) + "/Kids" +
                                    pdfList(nodes_) + ">>");
  faces_.write(file_, font_dictionary_);
  if (pattern_dictionary_ != 0) {
    std::string names = "<<";
    for (std::size_t i = 0; i < patterns_.size(); ++i)
      names += "/P" + std::to_string(i) + " " + pdfReference(patterns_[i]);
    file_.writeObject(pattern_dictionary_, names + ">>");
  }
  std::string entries = writeMetadata(file_, information_);
  if (structure_) entries += structure_->finish();
  if (opens_fitted_) entries += "/OpenAction[" + pdfReference(first_page_) + "/FitB]";
  const PdfId catalog =
      file_.addObject("<</Type/Catalog/Pages " + pdfReference(page_tree_) + entries + ">>");
  file_.finish(catalog, writeInformation(file_, information_));
}

void PdfPages::showImage(const PdfImage& image, const PdfBox& box) {
  const auto [name, isNew] =
      images_of_page_.try_emplace(image.object, "I" + std::to_string(image.object));
  content_.image(name->second, box);
}

std::string PdfPages::addPattern(std::string_view entries, std::string_view operators) {
  if (pattern_dictionary_ == 0) pattern_dictionary_ = file_.reserve();
  patterns_.push_back(file_.addStream(
      "/Type/Pattern/PatternType 1/PaintType 2/TilingType 1/Resources<<>>" + std::string(entries),
      operators));
  return "P" + std::to_string(patterns_.size() - 1);
}

}  // namespace qor
