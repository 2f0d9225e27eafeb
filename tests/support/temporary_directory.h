// A directory of a test's own, deleted with the object.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace qor::test {

class TemporaryDirectory {
 public:
  TemporaryDirectory();
  ~TemporaryDirectory();
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

  // The full name of a file in it.
  std::string path(std::string_view name = {}) const;

  // Writes the file and returns its full name.
  std::string write(std::string_view name, std::string_view bytes) const;

  // The bytes of a file, empty where there is none.
  std::string read(std::string_view name) const;
  bool has(std::string_view name) const;

  // Everything below it in order, directories with a "/" behind the name.
  std::vector<std::string> names() const;

 private:
  std::filesystem::path place_;
};

std::string readFile(const std::string& path);

}  // namespace qor::test
