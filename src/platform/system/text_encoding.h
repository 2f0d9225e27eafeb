// Text between code pages and Unicode, through the system's tables. File names, options and the
// interface are UTF-8; drawing wants code points.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qor {

// Bytes of the code page as UTF-8. Bytes that it doesn't define become U+FFFD; a code page that the
// system doesn't know counts as ASCII.
std::string utf8FromCodePage(std::string_view bytes, int codePage);

// Whether the system has a table of the code page, with one byte for each character.
bool isSingleByteCodePage(int codePage);

// UTF-8 as bytes of the code page. `substitute` stands for what it can't hold: "?" where the text
// must stay plain, or a numeric character reference in HTML.
enum class Substitute { questionMark, htmlReference };
std::string codePageFromUtf8(std::string_view text, int codePage, Substitute substitute);

// Bytes of the code page as code points; UTF-8 as code points. Wrong sequences become U+FFFD.
std::u32string codePointsFromCodePage(std::string_view bytes, int codePage);
std::u32string codePointsFromUtf8(std::string_view text);

// UTF-8 as UTF-16.
std::u16string utf16FromUtf8(std::string_view text);

// Appends a code point, which must be one that UTF-8 can hold; a text of such ones as UTF-8.
void appendUtf8(std::string& out, char32_t c);
std::string utf8FromCodePoints(std::u32string_view text);

// Every letter of a UTF-8 text in lower case, one letter for one letter, whatever the locale.
std::string lowerUtf8(std::string_view text);

// The first `count` characters of a UTF-8 text, and how many it has.
std::string_view firstCharacters(std::string_view text, std::size_t count);
std::size_t characterCount(std::string_view text);

// The code page that text of a font with this Windows character set number is written in: an ANSI
// one, the system's own for 1, and the system's OEM one for 255.
int codePageOfCharset(int charset);

}  // namespace qor
