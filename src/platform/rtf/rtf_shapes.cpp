// Drawing objects: a box, and properties by name. Their numbers are those of [MS-ODRAW] 2.3 and
// 2.4.24.
#include "platform/rtf/rtf_shapes.h"

#include <algorithm>

namespace qor {
namespace {

constexpr std::int32_t kFarthest = 1'000'000;  // twips; beyond any sheet, and within any reader
constexpr std::int32_t kWidestLine = 31680;    // twips: 1,584 points
constexpr std::int32_t kEmuPerTwip = 635;
constexpr int kPictureFrame = 75;
constexpr std::string_view kEnd = "}}\n";

// Not all readers know how round corners are, but all know a rectangle.
int typeOf(const WordShape& shape) {
  switch (shape.kind) {
    case WordShapeKind::line: return 20;
    case WordShapeKind::roundedRectangle: return shape.rounding > 0 ? 2 : 1;
    case WordShapeKind::ellipse: return 3;
    default: return 1;
  }
}

// Of a line that is drawn; a pen without one draws as a solid one.
int dashingOf(PenStyle style) {
  switch (style) {
    case PenStyle::dash: return 1;
    case PenStyle::dot: return 2;
    case PenStyle::dashDot: return 3;
    case PenStyle::dashDotDot: return 4;
    default: return 0;
  }
}

void appendNumber(std::string_view word, std::int64_t number, std::string& rtf) {
  rtf.append(1, '\\').append(word).append(std::to_string(number));
}

void appendProperty(std::string_view name, std::int64_t value, std::string& rtf) {
  rtf.append(R"({\sp{\sn )").append(name).append("}{\\sv ").append(std::to_string(value));
  rtf += "}}";
}

// A box the right way round, and whether it was turned over.
struct Placed {
  explicit Placed(const Rect& box)
      : left(near(std::min(box.left, box.right))),
        top(near(std::min(box.top, box.bottom))),
        right(near(std::max(box.left, box.right))),
        bottom(near(std::max(box.top, box.bottom))),
        turned((box.left > box.right) != (box.top > box.bottom)) {}

  static std::int32_t near(std::int32_t place) { return std::clamp(place, -kFarthest, kFarthest); }

  std::int32_t left, top, right, bottom;
  bool turned;
};

void appendStart(const Placed& box, int type, int number, std::string& rtf) {
  rtf += R"({\shp{\*\shpinst)";
  appendNumber("shpleft", box.left, rtf);
  appendNumber("shptop", box.top, rtf);
  appendNumber("shpright", box.right, rtf);
  appendNumber("shpbottom", box.bottom, rtf);
  rtf += R"(\shpfhdr0\shpbxpage\shpbxignore\shpbypage\shpbyignore\shpwr3\shpwrk0\shpfblwtxt1)";
  appendNumber("shpz", number, rtf);
  appendNumber("shplid", number, rtf);
  constexpr int kOfPage = 1;
  appendProperty("shapeType", type, rtf);
  appendProperty("posrelh", kOfPage, rtf);
  appendProperty("posrelv", kOfPage, rtf);
  appendProperty("fBehindDocument", 1, rtf);
  appendProperty("fAllowOverlap", 1, rtf);
  appendProperty("fFilled", 0, rtf);
}

void appendPen(const Pen& pen, std::string& rtf) {
  appendProperty("fLine", 1, rtf);
  appendProperty("lineColor", pen.color & kWhite, rtf);
  const std::int64_t width = std::clamp(pen.width, 1, kWidestLine);
  appendProperty("lineWidth", width * kEmuPerTwip, rtf);
  if (const int dashing = dashingOf(pen.style); dashing != 0)
    appendProperty("lineDashing", dashing, rtf);
}

// The corners' radius is told as a part of the shorter side.
void appendRounding(std::int32_t radius, const Placed& box, std::string& rtf) {
  constexpr std::int64_t kWhole = 21600;
  const std::int64_t shorter = std::min(box.right - box.left, box.bottom - box.top);
  const std::int64_t part = shorter == 0 ? 0 : radius * kWhole / shorter;
  appendProperty("adjustValue", std::clamp<std::int64_t>(part, 0, kWhole / 2), rtf);
}

// Bytes as pairs of digits, a line at a time.
void writeDigits(std::string_view bytes, ByteSink& sink) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  constexpr std::size_t kBytesInLine = 64;
  std::string line;
  for (; !bytes.empty(); bytes.remove_prefix(std::min(bytes.size(), kBytesInLine))) {
    line.clear();
    for (const char c : bytes.substr(0, kBytesInLine)) {
      const auto byte = static_cast<unsigned char>(c);
      line += kDigits[byte >> 4];
      line += kDigits[byte & 0xFU];
    }
    sink.write(line += '\n');
  }
}

}  // namespace

void appendRtfShape(const WordShape& shape, int number, std::string& rtf) {
  const Placed box(shape.box);
  appendStart(box, typeOf(shape), number, rtf);
  if (shape.kind == WordShapeKind::line && box.turned) appendProperty("fFlipV", 1, rtf);
  if (shape.kind == WordShapeKind::roundedRectangle) appendRounding(shape.rounding, box, rtf);
  appendPen(shape.pen, rtf);
  rtf += kEnd;
}

void writeRtfPicture(const EmbeddedPicture& picture, const WordPicture& place, int number,
                     ByteSink& sink) {
  const Placed box(place.box);
  std::string rtf;
  appendStart(box, kPictureFrame, number, rtf);
  if (place.frame) {
    appendPen(*place.frame, rtf);
  } else {
    appendProperty("fLine", 0, rtf);
  }
  rtf += R"({\sp{\sn pib}{\sv {\pict)";
  appendNumber("picw", picture.width, rtf);
  appendNumber("pich", picture.height, rtf);
  appendNumber("picwgoal", box.right - box.left, rtf);
  appendNumber("pichgoal", box.bottom - box.top, rtf);
  rtf += picture.kind == EmbeddedKind::png ? "\\pngblip\n" : "\\jpegblip\n";
  sink.write(rtf);
  writeDigits(picture.bytes, sink);
  sink.write("}}}");
  sink.write(kEnd);
}

}  // namespace qor
