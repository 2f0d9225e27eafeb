// The logical order of a document (ISO 32000-1, 14.7): its pages, and on them the lines of text, so
// that readers can be read aloud and copy whole lines.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/pdf/pdf_file.h"

namespace qor {

class PdfStructure {
 public:
  // The file must live as long.
  explicit PdfStructure(PdfFile& file);

  // What the page's dictionary refers to its lines by.
  std::string pageEntry() const;

  // The lines of the page with this number of marks each.
  void addPage(PdfId page, std::span<const int> marksOfLines);

  // Writes what is left; the entries of the catalog.
  std::string finish();

 private:
  PdfId addLine(PdfId page, PdfId section, int firstMark, int marks);
  void endNode();

  PdfFile& file_;
  PdfId root_;
  PdfId document_;
  std::vector<PdfId> sections_;
  std::string parents_;         // of the marks of pages: those of the node at hand
  std::size_t first_page_ = 0;  // of the node at hand
  std::string nodes_;
};

}  // namespace qor
