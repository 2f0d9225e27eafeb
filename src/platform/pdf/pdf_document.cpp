// Pages, and what is drawn on them.
#include "platform/pdf/pdf_document.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "base/units.h"
#include "platform/pdf/pdf_fonts.h"

namespace qor {
namespace {

constexpr std::size_t kPagesOfNode = 64;

std::string rectangleText(double width, double height) {
  std::string text = "[0 0 ";
  appendNumber(text, width);
  text += ' ';
  appendNumber(text, height);
  return text + "]";
}

std::string references(const std::vector<PdfId>& ids) {
  std::string text = "[";
  for (const PdfId id : ids) text += (text.size() == 1 ? "" : " ") + pdfReference(id);
  return text + "]";
}

}  // namespace

PdfDocument::PdfDocument(ByteSink& sink, PdfInformation information)
    : information_(std::move(information)),
      file_(sink),
      fonts_(std::make_unique<PdfFonts>()),
      images_(file_),
      font_dictionary_(file_.reserve()),
      page_tree_(file_.reserve()) {
}

PdfDocument::~PdfDocument() = default;

void PdfDocument::setResourceFile(const std::string& path) {
  resources_ = PdfResources(path);
}

void PdfDocument::defineEncoding(const std::string& name, const PdfEncoding& encoding) {
  encodings_[name] = fonts_->addEncoding(encoding);
}

void PdfDocument::setPageSize(double width, double height) {
  width_ = width;
  height_ = height;
}

void PdfDocument::beginPage() {
  content_.clear();
  images_of_page_.clear();
  saved_.clear();
  state_ = {};
  path_ = {};
}

void PdfDocument::endPage() {
  if (pages_.empty()) nodes_.push_back(file_.reserve());
  const PdfId contents = file_.addStream("", content_.bytes());
  std::string images;
  for (const auto& [id, name] : images_of_page_) images += "/" + name + " " + pdfReference(id);
  const PdfId page = file_.addObject("<</Type/Page/Parent " + pdfReference(nodes_.back()) +
                                     "/Resources<</Font " + pdfReference(font_dictionary_) +
                                     (images.empty() ? "" : "/XObject<<" + images + ">>") +
                                     ">>/Contents " + pdfReference(contents) + ">>");
  if (page_count_++ == 0) first_page_ = page;
  pages_.push_back(page);
  if (pages_.size() == kPagesOfNode) closeNode();
}

void PdfDocument::closeNode() {
  file_.writeObject(nodes_.back(), "<</Type/Pages/Parent " + pdfReference(page_tree_) + "/Count " +
                                       std::to_string(pages_.size()) + "/Kids" +
                                       references(pages_) + ">>");
  pages_.clear();
}

void PdfDocument::finish() {
  if (!pages_.empty()) closeNode();
  file_.writeObject(page_tree_, "<</Type/Pages/MediaBox" + rectangleText(width_, height_) +
                                    "/Count " + std::to_string(page_count_) + "/Kids" +
                                    references(nodes_) + ">>");
  fonts_->write(file_, font_dictionary_);
  const std::string metadata = writeMetadata(file_, information_);
  const PdfId catalog =
      file_.addObject("<</Type/Catalog/Pages " + pdfReference(page_tree_) + "/OpenAction[" +
                      pdfReference(first_page_) + "/FitB]" + metadata + ">>");
  file_.finish(catalog, writeInformation(file_, information_));
}

void PdfDocument::save() {
  content_.save();
  saved_.push_back(state_);
}

void PdfDocument::restore() {
  if (saved_.empty()) return;
  content_.restore();
  state_ = saved_.back();
  saved_.pop_back();
}

void PdfDocument::translate(double x, double y) {
  content_.transform(1, 0, 0, 1, x, y);
}

void PdfDocument::rotate(double degrees) {
  const double angle = degrees * std::numbers::pi / 180;
  content_.transform(std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0);
}

void PdfDocument::moveTo(double x, double y) {
  content_.moveTo(x, y);
  path_ = {x, y};
}

void PdfDocument::lineTo(double x, double y) {
  content_.lineTo(x, y);
  path_ = {x, y};
}

void PdfDocument::rectangle(double x, double y, double width, double height) {
  content_.rectangle(x, y, width, height);
  path_ = {x, y};
}

void PdfDocument::stroke() {
  content_.stroke();
  path_ = {};
}

void PdfDocument::fitImage(const PdfImage& image, double x, double y, const FitOptions& fit) {
  const double perPixel = pointsPerDot(fit.dpi);
  FitOptions::Box size = {image.width * perPixel, image.height * perPixel};
  if (fit.method == FitMethod::entire) size = fit.box;
  if (fit.method == FitMethod::meet) {
    const double scale = std::min(fit.box.width / size.width, fit.box.height / size.height);
    size = {size.width * scale, size.height * scale};
  }
  if (!(size.width > 0) || !(size.height > 0)) return;
  const auto [name, isNew] =
      images_of_page_.try_emplace(image.object, "I" + std::to_string(image.object));
  content_.image(name->second, x + fit.horizontal * (fit.box.width - size.width),
                 y + fit.vertical * (fit.box.height - size.height), size.width, size.height);
}

}  // namespace qor
