// Writing texts for JSON.
#include "bulk/json_text.h"

#include <array>
#include <cstdio>

#include "platform/system/text_encoding.h"

namespace qor {
namespace {

void appendUnit(std::string& json, unsigned unit) {
  std::array<char, 8> escape{};
  std::snprintf(escape.data(), escape.size(), "\\u%04x", unit);
  json += escape.data();
}

// Names of files may hold bytes that are no UTF-8: they become the units that Python reads them
// back from (PEP 383).
void append(std::string& json, std::string_view character) {
  constexpr unsigned kOfBytes = 0xDC00;
  const auto byte = static_cast<unsigned char>(character.front());
  if (character == "\"" || character == "\\") {
    (json += '\\') += character;
  } else if (byte < ' ') {
    appendUnit(json, byte);
  } else if (character.size() == 1 && byte >= 0x80) {
    appendUnit(json, kOfBytes + byte);
  } else {
    json += character;
  }
}

}  // namespace

std::string jsonText(std::string_view text) {
  std::string json = "\"";
  while (!text.empty()) {
    const std::string_view character = firstCharacters(text, 1);
    append(json, character);
    text.remove_prefix(character.size());
  }
  return json += '"';
}

}  // namespace qor
