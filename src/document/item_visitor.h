// The items of a line, told one by one to whoever writes them down. Each item calls the operation
// of its own kind; those with a font of their own, texts and barcodes, tell it first.
#pragma once

namespace qor {

class VData_BarCode;
class VData_Font;
class VData_Image;
class VData_Shape;
class VData_Text;

class ItemVisitor {
 public:
  virtual ~ItemVisitor() = default;

  virtual void font(VData_Font&) {}
  virtual void text(VData_Text&) {}
  virtual void shape(VData_Shape&) {}
  virtual void image(VData_Image&) {}
  virtual void barcode(VData_BarCode&) {}

 protected:
  ItemVisitor() = default;
  ItemVisitor(const ItemVisitor&) = default;
  ItemVisitor& operator=(const ItemVisitor&) = default;
};

}  // namespace qor
