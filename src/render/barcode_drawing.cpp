// Barcodes leave their place on the page empty: the symbols are not drawn.
#include "document/vdata.h"

namespace qor {

void VData_BarCode::Draw(Canvas&) {
}

}  // namespace qor
