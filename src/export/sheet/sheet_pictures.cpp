// Pictures for workbooks.
#include "export/sheet/sheet_pictures.h"

#include "base/path.h"
#include "base/units.h"
#include "document/picture_file.h"
#include "platform/pictures/picture.h"
#include "platform/system/byte_sink.h"
#include "platform/system/text_encoding.h"
#include "platform/workbook/workbook_writer.h"

namespace qor {
namespace {

class StringSink : public ByteSink {
 public:
  void write(std::string_view part) override { bytes += part; }

  std::string bytes;
};

// Pixels come multiplied by their alpha: what is left of it lets the paper through.
void putOnWhite(Picture& picture) {
  for (std::uint32_t& pixel : picture.pixels) pixel += (0xFF - (pixel >> 24)) * 0x010101;
}

std::string pngOf(Picture& picture) {
  putOnWhite(picture);
  StringSink sink;
  encodePicture({picture.width, picture.height, picture.width, picture.pixels.data()},
                PictureFormat::png, kPictureDpi, sink);
  return std::move(sink.bytes);
}

}  // namespace

std::optional<KnownPicture> SheetPictures::pictureOf(std::string_view file) {
  const auto [place, isNew] = known_.try_emplace(hashText(file) + std::to_string(file.size()));
  if (!isNew) return place->second;
  auto picture = decodePicture(file);
  if (!picture) return std::nullopt;
  KnownPicture known = {0, picture->width, picture->height};
  if (file.starts_with("\x89PNG")) {
    known.number = writer_.addPicture(file, SheetPictureKind::png);
  } else if (file.starts_with("\xFF\xD8")) {
    known.number = writer_.addPicture(file, SheetPictureKind::jpeg);
  } else {
    known.number = writer_.addPicture(pngOf(*picture), SheetPictureKind::png);
  }
  return place->second = known;
}

std::optional<KnownPicture> SheetPictures::pictureNamed(const std::string& name, int codePage) {
  const auto stamp = fileStamp(utf8FromCodePage(name, codePage));
  const auto named = named_.find(name);
  if (stamp && named != named_.end() && named->second.stamp == *stamp) return named->second.picture;
  const auto file = readPictureFile(name, codePage);
  const auto picture = file ? pictureOf(*file) : std::nullopt;
  if (stamp) named_.insert_or_assign(name, Named{*stamp, picture});
  return picture;
}

}  // namespace qor
