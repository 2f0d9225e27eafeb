// Finding picture files.
#include "document/picture_file.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/app_options.h"
#include "base/path.h"
#include "base/text.h"
#include "platform/pictures/picture_store.h"
#include "platform/system/directory.h"
#include "platform/system/input_file.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr std::array<std::string_view, 6> kExtensions = {".png", ".jpg", ".jpeg",
                                                         ".gif", ".bmp", ".ico"};

// Where a file really is counts. The wall of a run says the same where the kernel has one.
bool mayBeRead(const std::string& path) {
  const auto& places = AppOptions.PicturePlaces;
  return !places || std::ranges::any_of(*places, [&path](const std::string& place) {
    return realPath(path).starts_with(realPath(place) + "/");
  });
}

}  // namespace

std::optional<std::string> picturePath(std::string_view fileName, int codePage) {
  const std::string extension = lowerAscii(extensionOf(fileName));
  const bool known =
      std::find(kExtensions.begin(), kExtensions.end(), extension) != kExtensions.end();
  if (!known) return std::nullopt;
  std::string path = withSystemSeparators(utf8FromCodePage(fileName, codePage));
  return mayBeRead(path) ? std::optional(std::move(path)) : std::nullopt;
}

std::optional<std::string> readPictureFile(std::string_view fileName, int codePage) {
  const auto path = picturePath(fileName, codePage);
  return path ? readWholeFile(*path, kMaxPictureFile) : std::nullopt;
}

std::shared_ptr<const StoredPicture> pictureNamed(std::string_view fileName, int codePage) {
  const auto path = picturePath(fileName, codePage);
  return path ? storedPicture(*path) : nullptr;
}

}  // namespace qor
