// Escapes of RTF.
#include "platform/rtf/rtf_text.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <utility>

#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr char kDelete = 0x7F;
constexpr char16_t kNoCharacter = 0xFFFE;

bool isPlain(char c) {
  return c >= ' ' && c < kDelete && c != '\\' && c != '{' && c != '}';
}

bool isWide(char c) {
  return static_cast<unsigned char>(c) > static_cast<unsigned char>(kDelete);
}

void appendUnicode(std::string_view utf8, std::string& rtf) {
  for (const char16_t unit : utf16FromUtf8(utf8)) {
    if (unit >= kNoCharacter) continue;
    char number[8];
    const auto signedUnit = static_cast<std::int16_t>(unit);
    rtf.append("\\u").append(number, std::to_chars(number, std::end(number), signedUnit).ptr);
    rtf += '?';
  }
}

// `before` is the character before it.
void appendSpecial(char c, char before, std::string& rtf) {
  switch (c) {
    case '\\': rtf += "\\'5c"; break;
    case '{': rtf += "\\'7b"; break;
    case '}': rtf += "\\'7d"; break;
    case '\t': rtf += "\\tab "; break;
    case '\r': rtf += "\\line "; break;
    case '\n':
      if (before != '\r') rtf += "\\line ";
      break;
    case kDelete: rtf += "\\'7f"; break;
    default: break;
  }
}

}  // namespace

void appendRtfText(std::string_view utf8, std::string& rtf) {
  const char* const end = utf8.end();
  for (const char* place = utf8.begin(); place != end;) {
    const char* special = std::find_if_not(place, end, isPlain);
    rtf.append(place, special);
    place = std::find_if_not(special, end, isWide);
    if (place != special) {
      appendUnicode({special, place}, rtf);
    } else if (place != end) {
      appendSpecial(*place, place == utf8.begin() ? ' ' : place[-1], rtf);
      ++place;
    }
  }
}

void appendRtfName(std::string_view utf8, std::string& rtf) {
  std::string part;
  for (const char c : utf8) {
    if (c == ';') {
      appendRtfText(std::exchange(part, ""), rtf);
      rtf += "\\'3b";
    } else if (isWide(c) || c >= ' ') {
      part += c;
    }
  }
  appendRtfText(part, rtf);
}

}  // namespace qor
