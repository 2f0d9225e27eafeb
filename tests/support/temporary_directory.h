// A directory of a test's own, deleted with the object.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace qor::test {

std::string readFile(const std::string& path);

class TemporaryDirectory {
 public:
  TemporaryDirectory();
  ~TemporaryDirectory();
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

  // The full name of a file in it.
  std::string path(std::string_view name = {}) const { return (place_ / name).string(); }

  // Writes the file and returns its full name.
  std::string write(std::string_view name, std::string_view bytes) const;

  // The bytes of a file, empty where there is none.
  std::string read(std::string_view name) const { return readFile(path(name)); }
  bool has(std::string_view name) const { return std::filesystem::exists(place_ / name); }

  // Everything below it in order, directories with a "/" behind the name.
  std::vector<std::string> names() const;

 private:
  std::filesystem::path place_;
};

}  // namespace qor::test
