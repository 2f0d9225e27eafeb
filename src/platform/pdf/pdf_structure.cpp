// A section for each page, with a paragraph for each line.
#include "platform/pdf/pdf_structure.h"

namespace qor {
namespace {

constexpr std::size_t kPagesOfNode = 64;

}  // namespace

PdfStructure::PdfStructure(PdfFile& file)
    : file_(file), root_(file.reserve()), document_(file.reserve()) {
}

std::string PdfStructure::pageEntry() const {
  return "/StructParents " + std::to_string(sections_.size());
}

PdfId PdfStructure::addLine(PdfId page, PdfId section, int firstMark, int marks) {
  std::string kids = std::to_string(firstMark);
  for (int mark = firstMark + 1; mark < firstMark + marks; ++mark)
    kids += " " + std::to_string(mark);
  if (marks > 1) kids = "[" + kids + "]";
  return file_.addObject("<</S/P/P " + pdfReference(section) + "/Pg " + pdfReference(page) + "/K " +
                         kids + ">>");
}

void PdfStructure::addPage(PdfId page, std::span<const int> marksOfLines) {
  const PdfId section = file_.reserve();
  std::vector<PdfId> lines;
  std::vector<PdfId> ofMarks;
  for (const int marks : marksOfLines) {
    lines.push_back(addLine(page, section, static_cast<int>(ofMarks.size()), marks));
    ofMarks.insert(ofMarks.end(), static_cast<std::size_t>(marks), lines.back());
  }
  const PdfId parents = file_.addObject(pdfList(ofMarks));
  // Where no line is in pieces, both lists are the same.
  const PdfId kids = lines.size() == ofMarks.size() ? parents : file_.addObject(pdfList(lines));
  file_.writeObject(section,
                    "<</S/Sect/P " + pdfReference(document_) + "/K " + pdfReference(kids) + ">>");
  parents_ += std::to_string(sections_.size()) + " " + pdfReference(parents) + " ";
  sections_.push_back(section);
  if (sections_.size() - first_page_ == kPagesOfNode) endNode();
}

void PdfStructure::endNode() {
  const std::string limits =
      std::to_string(first_page_) + " " + std::to_string(sections_.size() - 1);
  nodes_ +=
      pdfReference(file_.addObject("<</Limits[" + limits + "]/Nums[" + parents_ + "]>>")) + " ";
  parents_.clear();
  first_page_ = sections_.size();
}

std::string PdfStructure::finish() {
  if (first_page_ < sections_.size()) endNode();
  file_.writeObject(document_,
                    "<</S/Document/P " + pdfReference(root_) + "/K" + pdfList(sections_) + ">>");
  file_.writeObject(root_, "<</Type/StructTreeRoot/K " + pdfReference(document_) +
                               "/ParentTree<</Kids[" + nodes_ + "]>>/ParentTreeNextKey " +
                               std::to_string(sections_.size()) + ">>");
  return "/MarkInfo<</Marked true>>/StructTreeRoot " + pdfReference(root_) +
         "/ViewerPreferences<</DisplayDocTitle true>>";
}

}  // namespace qor
