// Pictures to files.
#pragma once

#include <string>

#include "platform/pictures/picture.h"

namespace qor {

// Writes the pixels as a file of the format over what was there. Throws FileError, with the name of
// the file, where they can't be encoded or written.
void savePicture(const PixelView& pixels, PictureFormat format, int dpi, const std::string& name);

}  // namespace qor
