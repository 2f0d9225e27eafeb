// Finding picture files.
#include "document/picture_file.h"

#include <algorithm>
#include <array>

#include "base/path.h"
#include "base/text.h"
#include "platform/system/input_file.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr std::array<std::string_view, 6> kExtensions = {".png", ".jpg", ".jpeg",
                                                         ".gif", ".bmp", ".ico"};
constexpr std::uint64_t kMaxPictureFile = 256U << 20;

}  // namespace

std::optional<std::string> readNamedFile(std::string_view fileName, int codePage) {
  return readWholeFile(withSystemSeparators(utf8FromCodePage(fileName, codePage)), kMaxPictureFile);
}

std::optional<std::string> readPictureFile(std::string_view fileName, int codePage) {
  const std::string extension = lowerAscii(extensionOf(fileName));
  const bool known =
      std::find(kExtensions.begin(), kExtensions.end(), extension) != kExtensions.end();
  return known ? readNamedFile(fileName, codePage) : std::nullopt;
}

}  // namespace qor
