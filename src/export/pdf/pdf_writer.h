// The second stage of the PDF export: records of markup in, calls of the PDF engine out.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "export/pdf/pdf_markup.h"
#include "platform/pdf/pdf_document.h"

namespace qor {

class PdfWriter {
 public:
  // The document's first page is begun. `stem` starts the names of the pictures of barcodes.
  PdfWriter(PdfDocument& document, int codePage, std::string stem);

  // Writes the records of some lines. Position and colour go on from one call to the next.
  void WritePdf(const PdfLines& lines);

  // Ends the last page; all pages get this width, in points.
  void endPages(std::int32_t width);

 private:
  static constexpr double kPageHeight = 842;  // points

  void writeText(const MarkupRecord& record);
  void writeShape(const MarkupRecord& record);
  void writeImage(const MarkupRecord& record);
  void writeBarcode(const MarkupRecord& record);

  double selectFont(const MarkupRecord& record);
  std::size_t fontOf(const MarkupRecord& record);
  std::string faceFor(const std::string& name) const;
  void takePlace(const MarkupRecord& record);
  void turn(double angle);
  void showText(const MarkupRecord& record, const std::optional<FitOptions>& fit);
  const PdfImage* imageOf(const std::shared_ptr<const StoredPicture>& picture);
  void putInBox(const PdfImage* image, const MarkupRecord& record, FitOptions fit);
  void putAtCorner(const PdfImage* image, const MarkupRecord& record);
  void beginPage();
  void newPage();

  PdfDocument& document_;
  int code_page_;
  std::string encoding_;
  std::string stem_;
  // The document's fonts by their names in records: plain, bold, italic, both.
  std::array<std::map<std::string, std::size_t, std::less<>>, 4> fonts_;
  double left_ = 0;  // twips; they stay until a record tells others
  double top_ = 0;
  PdfColor color_;
  PdfPoint last_image_;  // pixels; frames of pictures that fail have the size of the last one
};

}  // namespace qor
