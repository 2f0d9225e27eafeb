// Pictures to files.
#pragma once

#include "platform/pictures/picture.h"

namespace qor {

class OutputFile;

// Writes the pixels in the format and completes the file. Throws FileError, with the name of the
// file, where they can't be encoded or written.
void savePicture(const PixelView& pixels, PictureFormat format, int dpi, OutputFile& file);

}  // namespace qor
