#include "scratch.h"

#include <cstdlib>
#include <stdexcept>
#include <utility>

#include "platform/pictures/picture.h"
#include "platform/system/byte_sink.h"
#include "platform/system/output_file.h"
#include "platform/walls/wall.h"

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
  OutputFile file((place_ / name).string(), LinkTarget::spared, Flush::later);
  file.write(bytes);
  file.commit();
  return file.target();
}

void raiseWallOnce() {
  static const bool raised = [] {
    if (std::getenv("QOR_FUZZ_WALL") == nullptr) return false;
    WallPlan plan;
    plan.writable = {fs::temp_directory_path().string()};
    if (!raiseWall(plan).empty()) std::abort();
    return true;
  }();
  static_cast<void>(raised);
}

}  // namespace qor::fuzz
