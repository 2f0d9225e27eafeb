// Pictures for workbooks.
#include "export/sheet/sheet_pictures.h"

#include <utility>

#include "base/path.h"
#include "document/picture_file.h"
#include "platform/pictures/embedded_picture.h"
#include "platform/system/text_encoding.h"
#include "platform/workbook/workbook_writer.h"

namespace qor {

std::optional<KnownPicture> SheetPictures::pictureOf(std::string file) {
  const auto [place, isNew] = known_.try_emplace(hashText(file) + std::to_string(file.size()));
  if (!isNew) return place->second;
  if (const auto picture = embeddedPicture(std::move(file)))
    place->second = KnownPicture{writer_.addPicture(*picture), picture->width, picture->height};
  return place->second;
}

std::optional<KnownPicture> SheetPictures::pictureNamed(const std::string& name, int codePage) {
  return named_.valueOf(utf8FromCodePage(name, codePage), [&]() -> std::optional<KnownPicture> {
    auto file = readPictureFile(name, codePage);
    return file ? pictureOf(*std::move(file)) : std::nullopt;
  });
}

}  // namespace qor
