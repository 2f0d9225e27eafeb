// Records on pages. Every page is taken to be 842 points high, and positions that a text has set go
// on for the texts behind it: readers of these documents know them so.
#include "export/pdf/pdf_writer.h"

#include <utility>

#include "base/text.h"
#include "base/units.h"
#include "document/item_kinds.h"
#include "export/pdf/markup_values.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr const char* kUsualFace = "Courier New";
constexpr double kUsualSize = 9;

// Lengths on and off by pen type.
std::span<const double> dashesOf(std::int32_t penType) {
  static constexpr std::array<double, 2> dash = {4, 2};
  static constexpr std::array<double, 2> dot = {2, 2};
  static constexpr std::array<double, 4> dashDot = {4, 3, 1, 3};
  static constexpr std::array<double, 6> dashDotDot = {4, 3, 1, 3, 1, 3};
  switch (penType) {
    case kDashPen: return dash;
    case kDotPen: return dot;
    case kDashDotPen: return dashDot;
    case kDashDotDotPen: return dashDotDot;
    default: return {};
  }
}

// How a text stands in its box, in the lower left corner where it tells no place; nothing for a
// text without a box.
std::optional<FitOptions> fitOf(const MarkupRecord& record, double size) {
  if (record[PdfField::textRight].empty() || record[PdfField::textBottom].empty()) return {};
  const std::int32_t across = integerOf(record[PdfField::textAcross]);
  const std::int32_t along = integerOf(record[PdfField::textAlong]);
  FitOptions fit;
  fit.box.width =
      wholePoints(record[PdfField::textRight]) - wholePoints(record[PdfField::textLeft]);
  fit.box.height =
      wholePoints(record[PdfField::textTop]) - wholePoints(record[PdfField::textBottom]);
  if (along == kAlignStart || along == kAlignEnd) fit.box.height += size;
  if (across < kAlignStart || across > kAlignEnd) return fit;
  fit.horizontal = across / 2.0;
  fit.vertical = along == kAlignEnd ? 1 : 0.5;
  return fit;
}

}  // namespace

PdfWriter::PdfWriter(PdfDocument& document, int codePage, std::string stem)
    : document_(document),
      code_page_(codePage),
      encoding_("cp" + std::to_string(codePage)),
      stem_(std::move(stem)) {
  beginPage();
}

void PdfWriter::endPages(std::int32_t width) {
  document_.endPage();
  document_.setPageSize(width, kPageHeight);
}

void PdfWriter::WritePdf(const PdfLines& lines) {
  for (const auto& line : lines) {
    for (const std::string& text : line) {
      const MarkupRecord record(text);
      // Pictures and barcodes are empty texts as well: their lines go on below.
      if (record.has(PdfField::shapeType)) {
        writeShape(record);
      } else {
        writeText(record);
      }
      if (record.has(PdfField::imageType)) writeImage(record);
      if (record.has(PdfField::barcodeValue)) writeBarcode(record);
    }
  }
}

void PdfWriter::beginPage() {
  document_.beginPage();
  document_.setTextPosition(0, kPageHeight);
}

void PdfWriter::newPage() {
  document_.endPage();
  beginPage();
}

// The face that is written for one that a record names.
std::string PdfWriter::faceFor(const std::string& name) const {
  return name.empty() || name == "Courier" || !document_.hasFace(name) ? kUsualFace : name;
}

// The document's font for that of a record.
std::size_t PdfWriter::fontOf(const MarkupRecord& record) {
  const std::string_view name = record[PdfField::fontName];
  const bool bold = record[PdfField::fontBold] == "1";
  const bool italic = record[PdfField::fontItalic] == "1";
  auto& fonts = fonts_[(bold ? 1U : 0U) + (italic ? 2U : 0U)];
  const auto known = fonts.find(name);
  if (known != fonts.end()) return known->second;
  std::string buffer;
  const std::string face = faceFor(utf8FromCodePage(trimmed(asReported(name, buffer)), code_page_));
  return fonts[std::string(name)] = document_.loadFont({face, bold, italic}, encoding_);
}

// Sets the font of a record; gives its size.
double PdfWriter::selectFont(const MarkupRecord& record) {
  const double size = realOf(record[PdfField::fontSize], kUsualSize);
  document_.setFont(fontOf(record), size);
  return size;
}

// The place stays until a record tells another one.
void PdfWriter::takePlace(const MarkupRecord& record) {
  if (!record[PdfField::textLeft].empty()) left_ = realOf(record[PdfField::textLeft]);
  if (!record[PdfField::textTop].empty()) top_ = realOf(record[PdfField::textTop]);
}

// Turns what follows around the text position, until restore.
void PdfWriter::turn(double angle) {
  const PdfPoint corner = document_.textPosition();
  document_.save();
  document_.translate(corner.x, corner.y);
  document_.rotate(angle);
  document_.setTextPosition(0, 0);
}

// Shows the text of a record: in its box, on the next line, or behind the text before it.
void PdfWriter::showText(const MarkupRecord& record, const std::optional<FitOptions>& fit) {
  std::string contentBuffer;
  std::string plainBuffer;
  const std::string_view content = asReported(record[PdfField::textContent], contentBuffer);
  const std::string_view text =
      trimmed(content).empty() ? asReported(record.plainText(), plainBuffer) : content;
  const bool newLine = record.startsLine();
  if (newLine && record.has(PdfField::textLeft)) document_.setLeading(0);
  if (fit) {
    document_.fitTextline(content, pointsFromTwips(left_), kPageHeight - pointsFromTwips(top_),
                          *fit);
  } else if (newLine) {
    document_.continueText(text);
  } else {
    document_.show(text);
  }
}

void PdfWriter::writeText(const MarkupRecord& record) {
  if (!record[PdfField::fontColor].empty()) color_ = colorOf(record[PdfField::fontColor]);
  if (record.startsPage()) newPage();
  const double size = selectFont(record);
  document_.setLeading(size + 1);
  document_.setFillColor(color_);
  takePlace(record);
  const bool positioned = left_ > 0 || top_ > 0;
  const PdfPoint before = document_.currentPoint();
  if (positioned)
    document_.setTextPosition(pointsFromTwips(left_), kPageHeight - pointsFromTwips(top_) - size);
  const double angle = realOf(record[PdfField::textAngle]) / 10;
  if (angle > 0) turn(angle);
  showText(record, positioned ? fitOf(record, size) : std::nullopt);
  if (angle > 0) document_.restore();
  // The point is in points already and is scaled all the same: the places of texts behind placed
  // ones depend on it in existing documents.
  if (positioned)
    document_.setTextPosition(pointsFromTwips(before.x),
                              kPageHeight - pointsFromTwips(before.y) - size);
}

void PdfWriter::writeShape(const MarkupRecord& record) {
  document_.setStrokeColor(colorOf(record[PdfField::boxColor]));
  const double left = wholePoints(record[PdfField::boxLeft]);
  const double right = wholePoints(record[PdfField::boxRight]);
  const double top = kPageHeight - wholePoints(record[PdfField::boxTop]);
  const double bottom = kPageHeight - wholePoints(record[PdfField::boxBottom]);
  const std::int32_t type = integerOf(record[PdfField::shapeType]);
  const std::int32_t pen = integerOf(record[PdfField::penType]);
  if (type == kLineShape) {
    document_.moveTo(left, top);
    document_.lineTo(right, bottom);
    document_.stroke();
  } else if (type == kRectangleShape && pen >= kNoPen && pen <= kDashDotDotPen) {
    document_.setDash(dashesOf(pen));
    document_.rectangle(left, top, right - left, bottom - top);
    document_.stroke();
    document_.setDash({});
  }
}

}  // namespace qor
