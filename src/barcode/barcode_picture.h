// Pictures of barcodes beside the report, which exporters that can't draw link to.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qor {

class VData_BarCode;
class VDocPage;

// Where the picture of a barcode is found: the start of its name, the value in its code page, and
// the place in twips.
struct BarcodePlace {
  std::string_view stem;
  std::string_view value;
  int codePage = 0;
  std::int32_t left = 0;
  std::int32_t top = 0;
};

// "<stem>_barcode_<value>_<x>_<y>" and the ending; x and y in whole millimetres. A value that can't
// be part of a file name, or makes it too long, has a short stand-in.
std::string barcodePictureName(const BarcodePlace& place, std::string_view ending);

std::string barcodePictureName(const VData_BarCode& code, std::string_view stem,
                               std::string_view ending);

// The file of such a picture; nothing where there is none.
std::optional<std::string> readBarcodePicture(const std::string& name);

// Writes the symbol in both endings, ".jpeg" and ".jpg", with the dots of a device of this
// resolution, as large as the item's box or, where that has no size, as what the bars cover. A
// picture that can't be written is left out. Throws as drawSymbol, and PictureError.
void writeBarcodePictures(const VData_BarCode& code, int dpi);

// The pictures of all barcodes of a page, at 96 dots per inch, for exporters that link to them
// without drawing. They start with the stem. A barcode that shows nothing is told, with page and
// value.
void writeBarcodePicturesOf(const VDocPage& page, std::string_view stem);

}  // namespace qor
