// The items of a line as cells, one after the other.
#pragma once

#include "document/item_visitor.h"

namespace qor {

class ExcelConvertLibXL;
struct FontState;

class CellTeller : public ItemVisitor {
 public:
  explicit CellTeller(ExcelConvertLibXL& convert) : convert_(convert) {}

  void font(VData_Font& item) override;
  void text(VData_Text& text) override;
  void shape(VData_Shape& shape) override;
  void image(VData_Image& image) override;
  void barcode(VData_BarCode& code) override;

 private:
  void writeBlank();

  ExcelConvertLibXL& convert_;
  const FontState* font_ = nullptr;  // of the item that is told
};

}  // namespace qor
