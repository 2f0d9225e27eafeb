// Pictures to files.
#include "platform/pictures/save_picture.h"

#include "base/errors.h"
#include "platform/system/output_file.h"

namespace qor {

void savePicture(const PixelView& pixels, PictureFormat format, int dpi, const std::string& name) {
  try {
    OutputFile file(name);
    encodePicture(pixels, format, dpi, file);
    file.commit();
  } catch (const PictureError& error) {
    throw FileError(name + ": " + error.what(), ErrorKind::cannotWrite);
  }
}

}  // namespace qor
