// What the lists of the settings dialog offer, and how their entries stand for values.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace qor {

// Windows character sets, in the order of their numbers.
struct CharsetEntry {
  std::string_view text;
  std::uint8_t charset;
};
std::span<const CharsetEntry> charsetEntries();

// The place of a character set; -1 for one that is not offered.
int entryOfCharset(std::uint8_t charset);

// The place of a code page among those of SettingsTexts, and back. Where it is not among them, and
// where there is no such place, it is that of Windows, English.
int entryOfCodePage(std::int32_t codePage);
std::int32_t codePageOfEntry(int entry);

// The tag of the choice that stands for a colour mode: both numbers of colour have one; -1 for
// modes that nobody can choose.
int colorChoice(std::int32_t printColor);

// The two halves of an item "9|A4   (210 x 297 mm)": its number, 0 where it has none, and what is
// shown of it.
std::int32_t numberOfItem(std::string_view item);
std::string_view nameOfItem(std::string_view item);

// The sides of a paper as edits show them, with the locale's decimal mark: as its item tells them
// for a sheet that stands, exchanged for any other. Nothing where the item tells none.
struct PaperSides {
  std::string width;
  std::string height;
};
std::optional<PaperSides> sidesOfItem(std::string_view item, std::int32_t orientation);

// "min = 76.2 mm, max = 431.8 mm", of tenths of a millimetre.
std::string limitsText(std::int32_t smallest, std::int32_t largest);

}  // namespace qor
