#include "scratch.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>

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

std::string Scratch::write(std::string_view name, std::string_view bytes) const {
  const fs::path file = place_ / name;
  std::ofstream(file, std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return file.string();
}

}  // namespace qor::fuzz
