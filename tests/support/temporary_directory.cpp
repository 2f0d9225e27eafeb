#include "support/temporary_directory.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace qor::test {
namespace fs = std::filesystem;

TemporaryDirectory::TemporaryDirectory() {
  std::string name = (fs::temp_directory_path() / "qortestXXXXXX").string();
  if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary directory");
  place_ = name;
}

TemporaryDirectory::~TemporaryDirectory() {
  std::error_code error;
  fs::remove_all(place_, error);
}

std::string TemporaryDirectory::write(std::string_view name, std::string_view bytes) const {
  const fs::path file = place_ / name;
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return file.string();
}

std::vector<std::string> TemporaryDirectory::names() const {
  std::vector<std::string> found;
  for (const auto& entry : fs::recursive_directory_iterator(place_)) {
    found.push_back(fs::relative(entry.path(), place_).string() +
                    (entry.is_directory() ? "/" : ""));
  }
  std::sort(found.begin(), found.end());
  return found;
}

std::string readFile(const std::string& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

}  // namespace qor::test
