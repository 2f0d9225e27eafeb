// Writing texts for JSON.
#include "bulk/json_text.h"

#include <array>
#include <cstdio>

#include "platform/system/text_encoding.h"

namespace qor {
namespace {

void append(std::string& json, char32_t letter) {
  if (letter == U'"' || letter == U'\\') {
    json += '\\';
    json += static_cast<char>(letter);
  } else if (letter < U' ') {
    std::array<char, 8> escape{};
    std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(letter));
    json += escape.data();
  } else {
    appendUtf8(json, letter);
  }
}

}  // namespace

std::string jsonText(std::string_view text) {
  std::string json = "\"";
  const std::u32string letters = codePointsFromUtf8(text);
  for (const char32_t letter : letters) append(json, letter);
  return json += '"';
}

}  // namespace qor
