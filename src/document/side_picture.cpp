// Pictures of items beside the report.
#include "document/side_picture.h"

#include <stdexcept>
#include <utility>

#include "base/errors.h"
#include "base/units.h"
#include "platform/canvas/bitmap_canvas.h"
#include "platform/pictures/save_picture.h"
#include "platform/system/directory.h"
#include "platform/system/messages.h"
#include "platform/system/output_file.h"

namespace qor {
namespace {

bool untold = false;
bool warned = false;
NewSidePictures* current = nullptr;

// A directory that can't be written would be told for each barcode of each page.
void warnOnce(const char* text) {
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
      NewSidePictures::note(name);
      // Nobody has named it: a link in its place is somebody else's.
      OutputFile file(name, LinkTarget::spared, Flush::later);
      savePicture(bitmap.pixels(), PictureFormat::jpeg, dpi, file);
    }
  } catch (const FileError& error) {
    warnOnce(error.what());
  }
}

void tellRefusedPicturesAgain() {
  warned = false;
}

NewSidePictures::NewSidePictures() : before_(std::exchange(current, this)) {
}

NewSidePictures::~NewSidePictures() {
  current = before_;
  deleteFiles(names_, {});
}

void NewSidePictures::note(const std::string& name) {
  if (current != nullptr && !isTaken(name)) current->names_.push_back(name);
}

UntoldSidePictures::UntoldSidePictures() : before_(std::exchange(untold, true)) {
}

UntoldSidePictures::~UntoldSidePictures() {
  untold = before_;
}

}  // namespace qor
