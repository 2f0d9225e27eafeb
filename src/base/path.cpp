// Cutting file names apart.
#include "base/path.h"

#include "base/text.h"

namespace qor {

bool hasSeparator(std::string_view path) {
  return path.find_first_of("/\\") != std::string_view::npos;
}

std::string_view directoryOf(std::string_view path) {
  const auto last = path.find_last_of("/\\");
  return last == std::string_view::npos ? std::string_view() : path.substr(0, last + 1);
}

std::string_view fileNameOf(std::string_view path) {
  return path.substr(directoryOf(path).size());
}

std::string_view extensionOf(std::string_view path) {
  const std::string_view name = fileNameOf(path);
  const auto point = name.rfind('.');
  return point == std::string_view::npos ? std::string_view() : name.substr(point);
}

std::string_view baseNameOf(std::string_view path) {
  const std::string_view name = fileNameOf(path);
  return name.substr(0, name.size() - extensionOf(name).size());
}

std::string_view sideFileStem(std::string_view path) {
  return path.substr(0, directoryOf(path).size() + upTo(fileNameOf(path), '.').size());
}

}  // namespace qor
