// The items of a line: what a report holds, and all that its output is made from. An item holds
// what the report said and is thrown away with its line. Lengths are in twips unless told. Items
// are drawn by the layers above: Draw and DrawOnPage of texts, shapes and images stand in render,
// those of barcodes, with their keys that check values, in barcode.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "base/chain.h"
#include "document/font_state.h"
#include "document/item_kinds.h"
#include "document/shared_font.h"

namespace qor {

class Canvas;
class ItemVisitor;
class VSet;
class StoredPicture;

class VData {
 public:
  VData() = default;
  VData(const VData&) = delete;
  VData& operator=(const VData&) = delete;
  virtual ~VData() { deleteChain<&VData::NextItem>(NextItem); }

  // Draws the item as it is, on the canvas's twip mapping.
  virtual void Draw(Canvas& canvas) = 0;

  // Draws the item as part of a page, which may leave a picture file beside the report.
  virtual void DrawOnPage(Canvas& canvas) { Draw(canvas); }

  // Calls the operation of the item's kind.
  virtual void tell(ItemVisitor& visitor) = 0;

  // What the item, once drawn, makes of the height of its line; 0 for items with places of their
  // own.
  virtual std::int32_t heightOnLine() const { return 0; }

  VData* NextItem = nullptr;  // of the same line, owned
  VSet* Settings = nullptr;   // the document's; null for texts
};

class VData_Font : public virtual VData {
 public:
  explicit VData_Font(const SharedFont& font) : Font(font) {}

  SharedFont Font;  // as it stood when the item was read
};

// A run of text on its line, a text at a place of its own, or a text in a box.
class VData_Text : public VData_Font {
 public:
  VData_Text(std::string_view text, const SharedFont& font) : VData_Font(font), Text(text) {}

  void Draw(Canvas& canvas) override;
  void tell(ItemVisitor& visitor) override;
  std::int32_t heightOnLine() const override { return HasPosition ? 0 : LineHeight; }

  // Fills WideText from Text and the code page table. An empty text leaves it alone.
  void BuildWideText();

  bool inBox() const { return HasPosition && (Right != 0 || Bottom != 0); }
  // PDF takes a text in the page's very corner for one on its line.
  bool offCorner() const { return Left != 0 || Top != 0; }

  // Of the item that was built last: pages hold millions of items, and one is drawn at a time.
  inline static std::u32string WideText;

  std::string Text;  // in the document's code page
  std::int32_t Left = 0;
  std::int32_t Top = 0;
  bool HasPosition = false;  // stands at Left, Top and not on its line
  std::int32_t Bottom = 0;
  std::int32_t Right = 0;
  std::int32_t AlignH = kAlignStart;  // in the box, an AlignKind
  std::int32_t AlignV = kAlignStart;
  std::int32_t LineHeight = 0;  // measured when drawn
  std::int32_t CharWidth = 0;   // measured when drawn
};

class VData_Shape : public virtual VData {
 public:
  explicit VData_Shape(VSet* settings) { Settings = settings; }

  void Draw(Canvas& canvas) override;
  void DrawOnPage(Canvas& canvas) override;
  void tell(ItemVisitor& visitor) override;

  std::int32_t ShapeType = kLineShape;  // a ShapeKind
  Color PenColor = 0;
  std::int32_t PenType = kSolidPen;  // a PenKind
  Color BrushColor = 0;
  std::int32_t BrushType = kNoBrush;  // a BrushKind
  std::int32_t Left = 0;
  std::int32_t Top = 0;
  std::int32_t Right = 0;
  std::int32_t Bottom = 0;
  std::int32_t LineWidth = 15;  // below 1 draws as 15
  std::int32_t RoundWidth = 0;
  std::int32_t RoundHeight = 0;

 private:
  void drawOutline(Canvas& canvas) const;
};

class VData_Image : public VData_Shape {
 public:
  using VData_Shape::VData_Shape;

  void Draw(Canvas& canvas) override;
  void DrawOnPage(Canvas& canvas) override;
  void tell(ItemVisitor& visitor) override;

  // Finds the picture, or the text to show in its place. Does nothing while it has one, so that a
  // run that shows no pictures reads none.
  void Load();

  std::string ErrorText;
  std::shared_ptr<const StoredPicture> Bitmap;
  std::string FileName;  // in the document's code page
  std::int32_t ImageNumber = -1;
  std::int32_t ImageStretch = kNaturalStretch;  // a StretchKind

 private:
  bool drawPicture(Canvas& canvas, bool onPage);
  void drawErrorText(Canvas& canvas);

  bool loaded_ = false;
};

class VData_BarCode : public VData_Font, public VData_Shape {
 public:
  explicit VData_BarCode(VSet* settings) : VData_Font(SharedFont()), VData_Shape(settings) {}

  // Throws ConversionError, which tells the value, for a symbol that can't be made of it.
  void Draw(Canvas& canvas) override;
  void DrawOnPage(Canvas& canvas) override { Draw(canvas); }
  void tell(ItemVisitor& visitor) override;

  // Once the keys are read: `before` is the barcode before this one on the page, or null.
  void follow(const VData_BarCode* before);

  // The item whose symbol this one shows: itself, or, where its type has no encoder, the nearest
  // one before it on the page that has; null where there is none.
  const VData_BarCode* symbolSource() const { return symbol_source_; }

  // Takes a symbology's name or number; an unknown one makes the type -1.
  void SetType(std::string_view text);
  // Takes the code, checked as the type stands at this moment; a check digit at its end is cut off.
  // False, and the type -1, where it can't be a code of this type.
  bool SetValue(std::string_view given);

  bool HasValue = false;
  std::string Value;
  std::int32_t BarcodeType = 2;  // -1: nothing is drawn
  std::int32_t ValueType = 0;
  std::int32_t Orientation = 0;
  Color BarColor = 0;
  bool ManualWidth = false;
  double LineWidth = 15.0;
  bool ManualHeight = false;
  double MarginTop = 0.0;
  double MarginBottom = 0.0;  // no key reaches it
  bool ShowValue = false;
  std::int32_t ValuePosition = 1;
  std::int32_t ValueFont = 0;
  bool SizeSet = true;
  float SizeFactor = 1.0F;
  std::int32_t AttributeCount = 0;

 private:
  const VData_BarCode* symbol_source_ = nullptr;
};

}  // namespace qor
