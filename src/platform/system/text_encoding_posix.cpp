// Code pages by iconv, UTF-8 by hand, letter case by the C library.
#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>

#include <iconv.h>
// The POSIX parts of them have no C++ headers.
#include <locale.h>  // NOLINT(modernize-deprecated-headers)
#include <wctype.h>  // NOLINT(modernize-deprecated-headers)

#include "platform/system/locale.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr int kUtf8 = 65001;

// One direction of conversion by the system, held open for the next text of the same kind.
class Converter {
 public:
  Converter(std::string to, std::string from)
      : to_(std::move(to)),
        from_(std::move(from)),
        handle_(::iconv_open(to_.c_str(), from_.c_str())) {}
  ~Converter() {
    if (known()) ::iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // POSIX tells failure by this pointer.
  bool known() const {
    return handle_ != reinterpret_cast<iconv_t>(-1);  // NOLINT(performance-no-int-to-ptr)
  }
  bool matches(std::string_view to, std::string_view from) const {
    return to_ == to && from_ == from;
  }

  // Converts one character's bytes; false if they have no counterpart.
  bool convert(std::string_view character, std::string& out) const {
    char result[16];
    char* in = const_cast<char*>(character.data());
    char* next = result;
    std::size_t left = character.size();
    std::size_t room = sizeof result;
    if (!known() || ::iconv(handle_, &in, &left, &next, &room) != 0 || left != 0) {
      reset();
      return false;
    }
    // Letters that a mark may follow are held back until they are asked for.
    ::iconv(handle_, nullptr, nullptr, &next, &room);
    out.append(result, sizeof result - room);
    return true;
  }

  // Whether the byte is only the beginning of a character.
  bool wantsMore(char byte) const {
    char result[16];
    char* in = &byte;
    char* next = result;
    std::size_t left = 1;
    std::size_t room = sizeof result;
    const bool more = ::iconv(handle_, &in, &left, &next, &room) == static_cast<std::size_t>(-1) &&
                      errno == EINVAL;
    reset();
    return more;
  }

 private:
  void reset() const {
    if (known()) ::iconv(handle_, nullptr, nullptr, nullptr, nullptr);
  }

  std::string to_;
  std::string from_;
  iconv_t handle_;
};

const Converter& converter(const std::string& to, const std::string& from) {
  thread_local std::unique_ptr<Converter> kept;
  if (!kept || !kept->matches(to, from)) kept = std::make_unique<Converter>(to, from);
  return *kept;
}

// The numbers that Windows gives to code pages whose own names are no numbers.
std::string nameOf(int codePage) {
  constexpr int kIso8859 = 28590;
  if (codePage > kIso8859 && codePage <= kIso8859 + 16)
    return "ISO-8859-" + std::to_string(codePage - kIso8859);
  switch (codePage) {
    case kUtf8: return "UTF-8";
    case 10000: return "MACINTOSH";
    case 20866: return "KOI8-R";
    case 21866: return "KOI8-U";
    default: return "CP" + std::to_string(codePage);
  }
}

bool isAscii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return isAscii(c); });
}

std::size_t sequenceLength(unsigned char lead) {
  return lead < 0x80 ? 1 : lead >= 0xF0 && lead < 0xF5 ? 4 : lead >= 0xE0 ? 3 : 2;
}

// Cuts the next character off the front of the text. A byte that starts none comes alone.
struct Utf8Character {
  std::string_view bytes;
  char32_t code = kReplacement;
};

Utf8Character takeCharacter(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = sequenceLength(lead);
  char32_t code = lead < 0x80 ? lead : lead & (0x7FU >> length);
  bool valid = (lead < 0x80 || (lead >= 0xC2 && lead < 0xF5)) && length <= text.size();
  for (std::size_t i = 1; valid && i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    valid = (next & 0xC0U) == 0x80;
    code = code << 6 | (next & 0x3FU);
  }
  constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
  valid = valid && code >= least[length] && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
  const Utf8Character result{text.substr(0, valid ? length : 1), valid ? code : kReplacement};
  text.remove_prefix(result.bytes.size());
  return result;
}

}  // namespace

void appendUtf8(std::string& out, char32_t c) {
  const auto byte = [&out](char32_t value) { out += static_cast<char>(value); };
  const auto trail = [&byte, c](int shift) { byte(0x80 | (c >> shift & 0x3F)); };
  if (c < 0x80) {
    byte(c);
  } else if (c < 0x800) {
    byte(0xC0 | c >> 6), trail(0);
  } else if (c < 0x10000) {
    byte(0xE0 | c >> 12), trail(6), trail(0);
  } else {
    byte(0xF0 | c >> 18), trail(12), trail(6), trail(0);
  }
}

std::string utf8FromCodePoints(std::u32string_view text) {
  std::string result;
  for (const char32_t c : text) appendUtf8(result, c);
  return result;
}

std::string utf8FromCodePage(std::string_view bytes, int codePage) {
  if (codePage == kUtf8 || isAscii(bytes)) return std::string(bytes);
  const Converter& conversion = converter("UTF-8", nameOf(codePage));
  std::string result;
  for (const char& byte : bytes) {
    if (isAscii(byte)) {
      result += byte;
    } else if (!conversion.convert({&byte, 1}, result)) {
      appendUtf8(result, kReplacement);
    }
  }
  return result;
}

bool isSingleByteCodePage(int codePage) {
  const Converter& conversion = converter("UTF-8", nameOf(codePage));
  if (!conversion.known()) return false;
  for (int byte = 0x80; byte <= 0xFF; ++byte) {
    if (conversion.wantsMore(static_cast<char>(byte))) return false;
  }
  return true;
}

std::string codePageFromUtf8(std::string_view text, int codePage, Substitute substitute) {
  if (isAscii(text)) return std::string(text);
  const Converter& conversion = converter(nameOf(codePage), "UTF-8");
  std::string result;
  while (!text.empty()) {
    const Utf8Character character = takeCharacter(text);
    if (character.code < 0x80) {
      result += character.bytes;
    } else if (!conversion.convert(character.bytes, result)) {
      const bool plain = substitute == Substitute::questionMark;
      result += plain ? "?" : "&#" + std::to_string(std::uint32_t{character.code}) + ";";
    }
  }
  return result;
}

std::u32string codePointsFromCodePage(std::string_view bytes, int codePage) {
  return codePointsFromUtf8(utf8FromCodePage(bytes, codePage));
}

std::u32string codePointsFromUtf8(std::string_view text) {
  std::u32string result;
  result.reserve(text.size());
  while (!text.empty()) result += takeCharacter(text).code;
  return result;
}

std::string lowerUtf8(std::string_view text) {
  static const locale_t unicode = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  std::string result;
  while (!text.empty()) {
    const Utf8Character character = takeCharacter(text);
    if (character.code == kReplacement || unicode == nullptr) {
      result += character.bytes;
    } else {
      appendUtf8(result,
                 static_cast<char32_t>(::towlower_l(static_cast<wint_t>(character.code), unicode)));
    }
  }
  return result;
}

std::u16string utf16FromUtf8(std::string_view text) {
  std::u16string units;
  units.reserve(text.size());
  for (const char32_t c : codePointsFromUtf8(text)) {
    if (c < 0x10000) {
      units += static_cast<char16_t>(c);
    } else {
      units += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
      units += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
    }
  }
  return units;
}

std::size_t characterCount(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
  }));
}

std::string_view firstCharacters(std::string_view text, std::size_t count) {
  std::string_view rest = text;
  while (count > 0 && !rest.empty()) {
    takeCharacter(rest);
    --count;
  }
  return text.substr(0, text.size() - rest.size());
}

int codePageOfCharset(int charset) {
  constexpr int kDefaultCharset = 1;
  constexpr int kOemCharset = 255;
  if (charset == kDefaultCharset) return systemAnsiCodePage();
  if (charset == kOemCharset) return systemOemCodePage();
  struct Row {
    int charset;
    int codePage;
  };
  static constexpr Row rows[] = {{161, 1253}, {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256},
                                 {186, 1257}, {204, 1251}, {222, 874},  {238, 1250}};
  for (const Row& row : rows) {
    if (row.charset == charset) return row.codePage;
  }
  return 1252;
}

}  // namespace qor
