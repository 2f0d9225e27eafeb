// Pictures of barcodes beside the report, which exporters that can't draw link to.
#pragma once

#include <string>
#include <string_view>

namespace qor {

class VData_BarCode;

// "<report>_barcode_<value>_<x>_<y>" and the ending; x and y in whole millimetres. Empty where the
// value can't be part of a file name.
std::string barcodePictureName(const VData_BarCode& code, std::string_view ending);

// Writes the symbol in both endings, ".jpeg" and ".jpg", with the dots of a device of this
// resolution and never more of them than the page has. A picture that can't be made or written is
// left out.
void writeBarcodePictures(VData_BarCode& code, int dpi);

}  // namespace qor
