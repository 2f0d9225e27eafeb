// Records on pages. Every page is taken to be 842 points high, and positions that a text has set go
// on for the texts behind it: readers of these documents know them so.
#include "export/pdf/pdf_writer.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <utility>

#include "barcode/barcode_picture.h"
#include "base/text.h"
#include "base/units.h"
#include "document/picture_file.h"
#include "platform/canvas/color.h"
#include "platform/system/input_file.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr double kPageHeight = 842;
constexpr const char* kUsualFace = "Courier New";
constexpr double kUsualSize = 9;
constexpr std::uint64_t kMaxBarcodePicture = 64U << 20;
constexpr double kImageDpi = 96;

std::int32_t integerOf(std::string_view value) {
  std::int64_t number = 0;
  std::from_chars(value.data(), value.data() + value.size(), number);
  return clamped(number);
}

double realOf(std::string_view value, double otherwise = 0) {
  double number = otherwise;
  std::from_chars(value.data(), value.data() + value.size(), number);
  return std::isfinite(number) ? number : otherwise;
}

// Whole points, and points.
double wholePoints(std::string_view twips) {
  return static_cast<double>(std::int64_t{integerOf(twips)} * kPointsPerInch / kTwipsPerInch);
}

double points(double twips) {
  return twips * kPointsPerInch / kTwipsPerInch;
}

PdfColor colorOf(std::string_view value) {
  std::uint32_t number = 0;
  std::from_chars(value.data(), value.data() + value.size(), number);
  const auto color = static_cast<Color>(number);
  return {redOf(color) / 255.0, greenOf(color) / 255.0, blueOf(color) / 255.0};
}

std::string boxOption(double width, double height) {
  std::string option = "boxsize={";
  appendDecimal(option, width);
  option += ' ';
  appendDecimal(option, height);
  return option += '}';
}

// Lengths on and off by pen type.
std::span<const double> dashesOf(std::int32_t penType) {
  static constexpr std::array<double, 2> dash = {4, 2};
  static constexpr std::array<double, 2> dot = {2, 2};
  static constexpr std::array<double, 4> dashDot = {4, 3, 1, 3};
  static constexpr std::array<double, 6> dashDotDot = {4, 3, 1, 3, 1, 3};
  switch (penType) {
    case 2: return dash;
    case 3: return dot;
    case 4: return dashDot;
    case 5: return dashDotDot;
    default: return {};
  }
}

}  // namespace

PdfWriter::PdfWriter(PdfDocument& document, int codePage, std::string stem)
    : document_(document),
      codePage_(codePage),
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
      if (record.has(PdfField::st)) {
        writeShape(record);
      } else {
        writeText(record);
      }
      if (record.has(PdfField::ist)) writeImage(record);
      if (record.has(PdfField::bcv)) writeBarcode(record);
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
  const std::string_view name = record[PdfField::fn];
  const bool bold = record[PdfField::fb] == "1";
  const bool italic = record[PdfField::fi] == "1";
  const auto known = fonts_.find(std::tuple(name, bold, italic));
  if (known != fonts_.end()) return known->second;
  std::string buffer;
  std::string face = faceFor(utf8FromCodePage(trimmed(withBrackets(name, buffer)), codePage_));
  if (bold) face += ",Bold";
  if (italic) face += ",Italic";
  return fonts_[{std::string(name), bold, italic}] = document_.loadFont(face, encoding_);
}

// Sets the font of a record; gives its size.
double PdfWriter::selectFont(const MarkupRecord& record) {
  const double size = realOf(record[PdfField::fs], kUsualSize);
  document_.setFont(fontOf(record), size);
  return size;
}

// How a text stands in its box; empty for a text without one.
std::string PdfWriter::fitOptionsOf(const MarkupRecord& record, double size) const {
  if (record[PdfField::ta].empty() || record[PdfField::tb].empty()) return {};
  static constexpr std::array<const char*, 3> kAcross = {"left", "center", "right"};
  const std::int32_t across = integerOf(record[PdfField::th]);
  const std::int32_t along = integerOf(record[PdfField::tv]);
  const double width = wholePoints(record[PdfField::ta]) - wholePoints(record[PdfField::tl]);
  double height = wholePoints(record[PdfField::tt]) - wholePoints(record[PdfField::tb]);
  if (along == 0 || along == 2) height += size;
  const std::string words = across < 0 || across > 2
                                ? ""
                                : std::string(kAcross[static_cast<std::size_t>(across)]) +
                                      (along == 2 ? " top" : " center");
  return boxOption(width, height) + "  position={" + words + "}";
}

void PdfWriter::writeText(const MarkupRecord& record) {
  std::string buffer;
  const bool isPlaced = !trimmed(record[PdfField::tc]).empty();
  const std::string_view text =
      withBrackets(isPlaced ? record[PdfField::tc] : record.plainText(), buffer);
  const double angle = realOf(record[PdfField::tr]) / 10;
  if (!record[PdfField::fc].empty()) color_ = colorOf(record[PdfField::fc]);
  if (record.whole().find(kPageMark) != std::string_view::npos) newPage();
  const double size = selectFont(record);
  document_.setLeading(size + 1);
  document_.setFillColor(color_);
  if (!record[PdfField::tl].empty()) left_ = realOf(record[PdfField::tl]);
  if (!record[PdfField::tt].empty()) top_ = realOf(record[PdfField::tt]);
  const bool positioned = left_ > 0 || top_ > 0;
  const PdfPoint before = document_.currentPoint();
  std::string options;
  if (positioned) {
    document_.setTextPosition(points(left_), kPageHeight - points(top_) - size);
    options = fitOptionsOf(record, size);
  }
  if (angle > 0) {
    const PdfPoint corner = document_.textPosition();
    document_.save();
    document_.translate(corner.x, corner.y);
    document_.rotate(angle);
  }
  const bool newLine = record.whole().find('\n') != std::string_view::npos;
  if (newLine && record.has(PdfField::tl)) document_.setLeading(0);
  if (angle > 0) document_.setTextPosition(0, 0);
  if (!options.empty()) {
    document_.fitTextline(isPlaced ? text : record[PdfField::tc], points(left_),
                          kPageHeight - points(top_), options);
  } else if (newLine) {
    document_.continueText(text);
  } else {
    document_.show(text);
  }
  if (angle > 0) document_.restore();
  // The point is in points already, and is scaled all the same.
  if (positioned)
    document_.setTextPosition(points(before.x), kPageHeight - points(before.y) - size);
}

void PdfWriter::writeShape(const MarkupRecord& record) {
  enum { kLine = 1, kRectangle = 2 };
  constexpr std::int32_t kPenTypes = 6;
  document_.setStrokeColor(colorOf(record[PdfField::gc]));
  const double left = wholePoints(record[PdfField::gl]);
  const double right = wholePoints(record[PdfField::gr]);
  const double top = kPageHeight - wholePoints(record[PdfField::gt]);
  const double bottom = kPageHeight - wholePoints(record[PdfField::gb]);
  const std::int32_t type = integerOf(record[PdfField::st]);
  const std::int32_t pen = integerOf(record[PdfField::pt]);
  if (type == kLine) {
    document_.moveTo(left, top);
    document_.lineTo(right, bottom);
    document_.stroke();
  } else if (type == kRectangle && pen >= 0 && pen < kPenTypes) {
    document_.setDash(dashesOf(pen));
    document_.rectangle(left, top, right - left, bottom - top);
    document_.stroke();
    document_.setDash({});
  }
}

void PdfWriter::writeImage(const MarkupRecord& record) {
  enum { kNone = -1, kNatural = 0, kEntire = 1, kMeet = 2 };
  const std::int32_t frame = integerOf(record[PdfField::ic]);
  document_.setStrokeColor(frame == 0 ? PdfColor{1, 1, 1} : colorOf(record[PdfField::ic]));
  const double left = points(realOf(record[PdfField::il]));
  const double width = points(realOf(record[PdfField::ir])) - left;
  const double height = points(realOf(record[PdfField::ib]) - realOf(record[PdfField::it]));
  const double bottom = kPageHeight - height - points(realOf(record[PdfField::it]));
  const double corner = wholePoints(record[PdfField::il]);
  const double top = kPageHeight - wholePoints(record[PdfField::it]);
  const std::int32_t stretch =
      record[PdfField::iss].empty() ? kNone : integerOf(record[PdfField::iss]);

  std::string buffer;
  const auto file = readNamedFile(withBrackets(record[PdfField::ifn], buffer), codePage_);
  const PdfImage* image = file ? document_.loadImage(*file) : nullptr;
  if (image != nullptr) {
    lastImage_ = {double(image->width), double(image->height)};
    const std::string box = boxOption(width, height);
    if (stretch == kEntire) {
      document_.fitImage(*image, left, bottom, box + " position={left top} fitmethod=entire");
    } else if (stretch == kMeet) {
      document_.fitImage(*image, left, bottom, box + " position={center} fitmethod=meet");
    } else if (stretch == kNatural) {
      document_.fitImage(*image, corner, top, "position={left top} dpi 96");
    }
  }
  if (stretch == kEntire || stretch == kMeet) {
    document_.rectangle(left, bottom, width, height);
  } else if (stretch == kNatural) {
    const double perPixel = kPointsPerInch / kImageDpi;
    document_.rectangle(corner, top - lastImage_.y * perPixel, lastImage_.x * perPixel,
                        lastImage_.y * perPixel);
  } else {
    return;
  }
  document_.stroke();
}

void PdfWriter::writeBarcode(const MarkupRecord& record) {
  if (!record[PdfField::gc].empty()) document_.setStrokeColor(colorOf(record[PdfField::gc]));
  std::string buffer;
  const std::string name =
      barcodePictureName({stem_, withBrackets(record[PdfField::bcv], buffer), codePage_,
                          integerOf(record[PdfField::gl]), integerOf(record[PdfField::gt])},
                         ".jpeg");
  const auto file = readWholeFile(name, kMaxBarcodePicture);
  const PdfImage* image = file ? document_.loadImage(*file) : nullptr;
  if (image == nullptr) return;
  lastImage_ = {double(image->width), double(image->height)};
  document_.fitImage(*image, wholePoints(record[PdfField::gl]),
                     kPageHeight - wholePoints(record[PdfField::gt]), "position={left top} dpi 96");
}

}  // namespace qor
