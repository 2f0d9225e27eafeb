#include "scratch.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <utility>

#include "platform/pictures/picture.h"
#include "platform/system/byte_sink.h"

namespace qor::fuzz {
namespace fs = std::filesystem;

Scratch::Scratch() {
  std::string name = (fs::temp_directory_path() / "qorfuzzXXXXXX").string();
  if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary directory");
  place_ = name;
}

Scratch::~Scratch() {
  std::error_code error;
  fs::remove_all(place_, error);
}

void Scratch::clear() const {
  for (const fs::directory_entry& file : fs::directory_iterator(place_)) fs::remove_all(file);
}

void Scratch::writePictures() const {
  struct Taker : ByteSink {
    void write(std::string_view bytes) override { taken += bytes; }
    std::string taken;
  };
  constexpr std::uint32_t kPixels[6] = {0xFF0000, 0x00FF00, 0x0000FF, 0, 0xFFFFFF, 0x808080};
  for (const auto& [name, format] : {std::pair("p.png", PictureFormat::png),
                                     {"p.jpg", PictureFormat::jpeg},
                                     {"p.bmp", PictureFormat::bmp}}) {
    Taker file;
    encodePicture({3, 2, 3, kPixels}, format, 96, file);
    write(name, file.taken);
  }
}

std::string Scratch::write(std::string_view name, std::string_view bytes) const {
  const fs::path file = place_ / name;
  std::ofstream(file, std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return file.string();
}

}  // namespace qor::fuzz
