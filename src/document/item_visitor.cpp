// Items tell themselves.
#include "document/item_visitor.h"

#include "document/vdata.h"

namespace qor {

void VData_Text::tell(ItemVisitor& visitor) {
  visitor.font(*this);
  visitor.text(*this);
}

void VData_Shape::tell(ItemVisitor& visitor) {
  visitor.shape(*this);
}

void VData_Image::tell(ItemVisitor& visitor) {
  visitor.image(*this);
}

void VData_BarCode::tell(ItemVisitor& visitor) {
  visitor.font(*this);
  visitor.barcode(*this);
}

}  // namespace qor
