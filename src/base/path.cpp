// Cutting file names apart.
#include "base/path.h"

#include <array>
#include <cstdint>
#include <cstdio>

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

std::string sideFileStem(std::string_view path) {
  // "_barcode_", the stand-in for a value (57 bytes), two places of up to 11 digits, an ending.
  constexpr std::size_t behind = 9 + 57 + 2 * 12 + 5;
  const std::string_view directory = directoryOf(path);
  return std::string(directory) + shortenedName(upTo(fileNameOf(path), '.'), kMaxFileName - behind);
}

std::string shortenedName(std::string_view name, std::size_t limit) {
  if (name.size() <= limit) return std::string(name);
  const std::string tail = "~" + hashText(name);
  std::size_t cut = limit - tail.size();
  const auto continues = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; };
  while (cut > 0 && continues(name[cut])) --cut;
  return std::string(name.substr(0, cut)) + tail;
}

std::string hashText(std::string_view bytes) {
  std::uint64_t hash = 0xCBF29CE484222325;
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  std::array<char, 17> digits{};
  std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(hash));
  return digits.data();
}

}  // namespace qor
