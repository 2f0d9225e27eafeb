// Pictures of a report, from their files.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "document/picture_file.h"
#include "document/vdata.h"
#include "document/vset.h"
#include "platform/pictures/picture.h"

namespace qor {
namespace {

constexpr std::size_t kLargePixels = 1U << 20;

// A report repeats its logo on each page: the pictures used last are kept decoded, by the bytes of
// their files.
class RecentPictures {
 public:
  std::shared_ptr<const Picture> get(std::string_view fileName, int codePage) {
    const auto file = readPictureFile(fileName, codePage);
    if (!file) return nullptr;
    const auto kept = std::find_if(kept_.begin(), kept_.end(),
                                   [&](const Entry& entry) { return entry.file == *file; });
    if (kept != kept_.end()) {
      std::rotate(kept_.begin(), kept, kept + 1);
      return kept_.front().picture;
    }
    auto picture = decodePicture(*file);
    if (!picture) return nullptr;
    keep({*file, std::make_shared<const Picture>(std::move(*picture))});
    return kept_.front().picture;
  }

 private:
  struct Entry {
    std::string file;
    std::shared_ptr<const Picture> picture;

    std::size_t bytes() const { return file.size() + picture->pixels.size() * 4; }
  };

  static constexpr std::size_t kMaxEntries = 16;
  static constexpr std::size_t kMaxBytes = 4U << 20;

  void keep(Entry entry) {
    kept_.insert(kept_.begin(), std::move(entry));
    std::size_t bytes = 0;
    const auto beyond = std::find_if(kept_.begin() + 1, kept_.end(), [&](const Entry& older) {
      return (bytes += older.bytes()) > kMaxBytes;
    });
    kept_.erase(beyond, kept_.end());
    if (kept_.size() > kMaxEntries) kept_.pop_back();
  }

  std::vector<Entry> kept_;
};

RecentPictures& recentPictures() {
  static RecentPictures pictures;
  return pictures;
}

}  // namespace

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
  Bitmap = recentPictures().get(FileName, Settings->Page.BaseCodePage);
  if (!Bitmap) ErrorText = FileName;
}

// Many large pictures on a page must not stand in memory together.
void VData_Image::releaseLargePicture() {
  if (Bitmap->pixels.size() < kLargePixels) return;
  Bitmap.reset();
  loaded_ = false;
}

}  // namespace qor
