// Pictures of items beside the report.
#include "document/side_picture.h"

#include <stdexcept>
#include <utility>

#include "base/errors.h"
#include "base/units.h"
#include "platform/canvas/bitmap_canvas.h"
#include "platform/pictures/save_picture.h"
#include "platform/system/messages.h"

namespace qor {
namespace {

bool untold = false;

// A directory that can't be written would be told for each barcode of each page.
void warnOnce(const char* text) {
  static bool warned = false;
  if (!untold && !std::exchange(warned, true)) showWarning(text);
}

}  // namespace

void saveSidePicture(const Rect& rect, int dpi, const std::vector<std::string>& names,
                     const std::function<void(Canvas&)>& draw) {
  const int twipsPerDot = wholeTwipsPerDot(dpi);
  if (twipsPerDot == 0 || names.empty()) return;
  const int width = clamped(rect.width() / twipsPerDot);
  const int height = clamped(rect.height() / twipsPerDot);
  if (width <= 0 || height <= 0) return;
  try {
    BitmapCanvas bitmap(width, height, dpiOfTwips(twipsPerDot));
    draw(bitmap.canvas());
    for (const std::string& name : names) {
      savePicture(bitmap.pixels(), PictureFormat::jpeg, dpi, name);
    }
  } catch (const FileError& error) {
    warnOnce(error.what());
  }
}

UntoldSidePictures::UntoldSidePictures() : before_(std::exchange(untold, true)) {
}

UntoldSidePictures::~UntoldSidePictures() {
  untold = before_;
}

}  // namespace qor
