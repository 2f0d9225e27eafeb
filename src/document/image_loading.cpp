// Pictures of a report, from their files.
#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "base/path.h"
#include "base/text.h"
#include "document/vdata.h"
#include "document/vset.h"
#include "platform/input_file.h"
#include "platform/picture.h"
#include "platform/text_encoding.h"

namespace qor {
namespace {

constexpr std::array<std::string_view, 6> kExtensions = {".png", ".jpg", ".jpeg",
                                                         ".gif", ".bmp", ".ico"};
constexpr std::uint64_t kMaxPictureFile = 256U << 20;
constexpr std::size_t kLargePixels = 1U << 20;

// A report repeats its logo on each page: the pictures used last are kept decoded, by the bytes of
// their files.
class RecentPictures {
 public:
  std::shared_ptr<const Picture> get(const std::string& path) {
    const auto file = readWholeFile(path, kMaxPictureFile);
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

// The file's name for the system. A name with "\" is tried with "/" where it is not found.
std::string systemName(std::string_view fileName, int codePage) {
  std::string name = utf8FromCodePage(fileName, codePage);
  if (name.find('\\') == std::string::npos || fileExists(name)) return name;
  std::replace(name.begin(), name.end(), '\\', '/');
  return name;
}

bool hasPictureExtension(std::string_view name) {
  const std::string extension = lowerAscii(extensionOf(name));
  return std::find(kExtensions.begin(), kExtensions.end(), extension) != kExtensions.end();
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
  if (hasPictureExtension(FileName)) {
    Bitmap = recentPictures().get(systemName(FileName, Settings->Page.BaseCodePage));
  }
  if (!Bitmap) ErrorText = FileName;
}

// Many large pictures on a page must not stand in memory together.
void VData_Image::releaseLargePicture() {
  if (Bitmap->pixels.size() < kLargePixels) return;
  Bitmap.reset();
  loaded_ = false;
}

}  // namespace qor
