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
#include "render/shape_pen.h"

namespace qor {
namespace {

constexpr double kUsualSize = 12;  // points, of a font without a height

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
    const LogFont& font = item.Font->LogFont;
    const double size = std::abs(item.Font->Height);
    document_.setFont(text_.utf8(font.faceName()), size > 0 ? size : kUsualSize);
    if (bold_ ? font.Weight <= kPlainWeight : font.Weight >= kBoldWeight)
      toggle(bold_, &WordDocument::toggleBold);
    if (font.Italic == (italic_ ? 0 : 1)) toggle(italic_, &WordDocument::toggleItalic);
    if (font.Underline == (underline_ ? 0 : 1)) toggle(underline_, &WordDocument::toggleUnderline);
  }

  void text(VData_Text& item) override { document_.typeText(text_.utf8(item.Text)); }

  void shape(VData_Shape& shape) override {
    const auto kind = shapeKindOf(shape.ShapeType);
    if (pictures_ == nullptr || !kind) return;
    const std::int32_t rounding = std::min(shape.RoundWidth, shape.RoundHeight) / 2;
    document_.addShape(
        {*kind, {shape.Left, shape.Top, shape.Right, shape.Bottom}, penOf(shape), rounding});
    has_placed_ = true;
  }

  void image(VData_Image& image) override {
    const auto picture = pictures_ == nullptr ? nullptr : pictures_->pictureOf(image);
    const auto box = picture ? boxOf(image, *picture) : std::nullopt;
    if (!box) return;
    std::optional<Pen> frame;
    if (image.ShapeType == kRectangleShape) frame = penOf(image);
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
  void toggle(bool& flag, void (WordDocument::*style)()) {
    (document_.*style)();
    flag = !flag;
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
