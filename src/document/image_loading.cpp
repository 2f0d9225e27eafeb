// Pictures of a report, from their files.
#include <string>

#include "document/picture_file.h"
#include "document/vdata.h"
#include "document/vset.h"

namespace qor {

void VData_Image::Load() {
  if (loaded_) return;
  loaded_ = true;
  if (ImageNumber != -1) {
    ErrorText = "Resim ID = " + std::to_string(ImageNumber) + " yok";
    return;
  }
  if (FileName.empty()) {
    ErrorText = "Resim yok";
    return;
  }
  Bitmap = pictureNamed(FileName, Settings->Page.BaseCodePage);
  if (!Bitmap) ErrorText = FileName;
}

}  // namespace qor
