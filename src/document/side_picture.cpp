// Pictures of items beside the report.
#include "document/side_picture.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/units.h"
#include "document/vset.h"
#include "platform/bitmap_canvas.h"
#include "platform/messages.h"
#include "platform/save_picture.h"

namespace qor {
namespace {

int withinSheet(std::int64_t twips, int twipsPerDot, const VSetPage& page) {
  const std::int32_t sheet = twipsFromMillimetres(std::max(page.PaperWidth, page.PaperHeight));
  return clamped(std::min<std::int64_t>(twips, sheet) / twipsPerDot);
}

// A directory that can't be written would be told for each barcode of each page.
void warnOnce(const char* text) {
  static bool warned = false;
  if (!std::exchange(warned, true)) showWarning(text);
}

}  // namespace

void saveSidePicture(const Rect& rect, int dpi, const VSetPage& page,
                     const std::vector<std::string>& names,
                     const std::function<void(Canvas&)>& draw) {
  const int twipsPerDot = dpi > 0 ? kTwipsPerInch / dpi : 0;
  if (twipsPerDot == 0 || names.empty()) return;
  const int width = withinSheet(rect.width(), twipsPerDot, page);
  const int height = withinSheet(rect.height(), twipsPerDot, page);
  if (width <= 0 || height <= 0) return;
  try {
    BitmapCanvas bitmap(width, height, kTwipsPerInch / twipsPerDot);
    draw(bitmap.canvas());
    for (const std::string& name : names) {
      savePicture(bitmap.pixels(), PictureFormat::jpeg, dpi, name);
    }
  } catch (const std::runtime_error& error) {
    // Whatever it is, it costs the picture and nothing else.
    warnOnce(error.what());
  }
}

}  // namespace qor
