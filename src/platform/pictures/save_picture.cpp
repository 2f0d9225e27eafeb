// Pictures to files.
#include "platform/pictures/save_picture.h"

#include "base/errors.h"
#include "platform/system/output_file.h"

namespace qor {

void savePicture(const PixelView& pixels, PictureFormat format, int dpi, OutputFile& file) {
  try {
    encodePicture(pixels, format, dpi, file);
    file.commit();
  } catch (const PictureError& error) {
    throw FileError(file.target() + ": " + error.what(), ErrorKind::cannotWrite);
  }
}

}  // namespace qor
