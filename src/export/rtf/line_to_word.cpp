// Items as text, shapes and pictures of a document.
#include "export/rtf/line_to_word.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "base/units.h"
#include "document/item_visitor.h"
#include "document/vdata.h"
#include "export/rtf/word_pictures.h"
#include "platform/rtf/word_document.h"
#include "render/image_placing.h"

namespace qor {
namespace {

constexpr double kUsualSize = 12;  // points, of a font without a height
constexpr std::int32_t kUsualLineWidth = 15;

std::optional<WordShapeKind> shapeKindOf(std::int32_t shape) {
  switch (shape) {
    case kLineShape: return WordShapeKind::line;
    case kRectangleShape:
    case kPictureShape: return WordShapeKind::rectangle;
    case kRoundedShape: return WordShapeKind::roundedRectangle;
    case kEllipseShape: return WordShapeKind::ellipse;
    default: return std::nullopt;
  }
}

// Always a line that is seen, whatever the pen.
WordLine lineOf(const VData_Shape& shape) {
  const std::int32_t width = shape.LineWidth < 1 ? kUsualLineWidth : shape.LineWidth;
  switch (shape.PenType) {
    case kDashPen: return {shape.PenColor, width, PenStyle::dash};
    case kDotPen: return {shape.PenColor, width, PenStyle::dot};
    case kDashDotPen: return {shape.PenColor, width, PenStyle::dashDot};
    case kDashDotDotPen: return {shape.PenColor, width, PenStyle::dashDotDot};
    default: return {shape.PenColor, width, PenStyle::solid};
  }
}

Rect naturalBox(const VData_Shape& item, const EmbeddedPicture& picture) {
  return *placeImage(kNaturalStretch, {item.Left, item.Top, item.Right, item.Bottom}, picture.width,
                     picture.height);
}

// As the page shows it, and nothing where it shows none; but what hangs in the page's corner there
// hangs at its own place.
std::optional<Rect> boxOf(const VData_Image& image, const EmbeddedPicture& picture) {
  const Rect item = {image.Left, image.Top, image.Right, image.Bottom};
  if (image.ImageStretch == kTwipPerPixelStretch)
    return Rect{item.left, item.top, clamped(std::int64_t{item.left} + picture.width),
                clamped(std::int64_t{item.top} + picture.height)};
  const auto box = placeImage(image.ImageStretch, item, picture.width, picture.height);
  if (!box) return naturalBox(image, picture);
  if (box->width() <= 0 || box->height() <= 0) return std::nullopt;
  return box;
}

class LineTeller : public ItemVisitor {
 public:
  explicit LineTeller(const WordTyping& typing)
      : document_(typing.document), text_(typing.text), pictures_(typing.pictures) {}

  bool hasPlaced() const { return has_placed_; }

  void font(VData_Font& item) override {
    const LogFont& font = item.Font.LogFont;
    const double size = std::abs(item.Font.Height);
    document_.setFont(text_.utf8(font.faceName()), size > 0 ? size : kUsualSize);
    if (font.Weight >= kBoldWeight && !bold_) toggleBold();
    if (font.Weight <= kPlainWeight && bold_) toggleBold();
    if (font.Italic <= 1 && italic_ != (font.Italic == 1)) toggleItalic();
    if (font.Underline <= 1 && underline_ != (font.Underline == 1)) toggleUnderline();
  }

  void text(VData_Text& item) override { document_.typeText(text_.utf8(item.Text)); }

  void shape(VData_Shape& shape) override {
    const auto kind = shapeKindOf(shape.ShapeType);
    if (pictures_ == nullptr || !kind) return;
    const std::int32_t rounding = std::min(shape.RoundWidth, shape.RoundHeight) / 2;
    document_.addShape(
        {*kind, {shape.Left, shape.Top, shape.Right, shape.Bottom}, lineOf(shape), rounding});
    has_placed_ = true;
  }

  void image(VData_Image& image) override {
    const auto picture = pictures_ == nullptr ? nullptr : pictures_->pictureOf(image);
    const auto box = picture ? boxOf(image, *picture) : std::nullopt;
    if (!box) return;
    std::optional<WordLine> frame;
    if (image.ShapeType == kRectangleShape) frame = lineOf(image);
    document_.addPicture(*picture, {*box, frame});
    has_placed_ = true;
  }

  void barcode(VData_BarCode& code) override {
    const auto picture = pictures_ == nullptr ? nullptr : pictures_->pictureOf(code);
    if (!picture) return;
    document_.addPicture(*picture, {naturalBox(code, *picture), std::nullopt});
    has_placed_ = true;
  }

 private:
  void toggleBold() {
    document_.toggleBold();
    bold_ = !bold_;
  }
  void toggleItalic() {
    document_.toggleItalic();
    italic_ = !italic_;
  }
  void toggleUnderline() {
    document_.toggleUnderline();
    underline_ = !underline_;
  }

  WordDocument& document_;
  const DocumentText& text_;
  WordPictures* pictures_;
  // What this line has turned on.
  bool bold_ = false;
  bool italic_ = false;
  bool underline_ = false;
  bool has_placed_ = false;
};

}  // namespace

bool LineToWord(const VDocStr& line, const WordTyping& typing) {
  LineTeller teller(typing);
  line.tell(teller);
  return teller.hasPlaced();
}

}  // namespace qor
