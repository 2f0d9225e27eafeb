// Finding pictures.
#include "export/rtf/word_pictures.h"

#include <optional>
#include <utility>

#include "barcode/barcode_picture.h"
#include "document/picture_file.h"
#include "document/vdata.h"
#include "document/vset.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

using Shared = std::shared_ptr<const EmbeddedPicture>;

constexpr std::size_t kMostKnownBytes = std::size_t{16} << 20;

Shared embedded(std::optional<std::string> file) {
  auto picture = file ? embeddedPicture(*std::move(file)) : std::nullopt;
  return picture ? std::make_shared<const EmbeddedPicture>(*std::move(picture)) : nullptr;
}

}  // namespace

Shared WordPictures::pictureOf(const VData_Image& image) {
  if (image.ImageNumber != -1) return nullptr;
  const int codePage = image.Settings->Page.BaseCodePage;
  return known_.valueOf(utf8FromCodePage(image.FileName, codePage), [&] {
    Shared picture = embedded(readPictureFile(image.FileName, codePage));
    known_bytes_ += picture ? picture->bytes.size() : 0;
    if (known_bytes_ > kMostKnownBytes) {
      known_.clear();
      known_bytes_ = picture ? picture->bytes.size() : 0;
    }
    return picture;
  });
}

Shared WordPictures::pictureOf(const VData_BarCode& code) const {
  return embedded(readBarcodePicture(barcodePictureName(code, stem_, ".jpeg")));
}

}  // namespace qor
