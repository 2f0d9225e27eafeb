// Entries and their values.
#include "window_model/set_choices.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "base/text.h"
#include "platform/system/locale.h"
#include "settings/number_text.h"

namespace qor {
namespace {

constexpr CharsetEntry kCharsets[] = {
    {"0     ANSI characters", 0},
    {"1     Default charsets", 1},
    {"2     Standard symbol set", 2},
    {"77   Macintosh characters", 77},
    {"128 Japanese shift-jis characters", 128},
    {"129 Korean characters (Wansung).", 129},
    {"130 Korean characters (Johab)", 130},
    {"134 Simplified Chinese characters (mainland china)", 134},
    {"136 Traditional Chinese characters (taiwanese)", 136},
    {"161 Greek characters", 161},
    {"162 Turkish characters", 162},
    {"163 Vietnamese characters", 163},
    {"177 Hebrew characters", 177},
    {"178 Arabic characters", 178},
    {"186 Baltic characters", 186},
    {"204 Cyrillic characters", 204},
    {"222 Thai characters", 222},
    {"238 +diacritical marks for eastern european countries", 238},
    {"255 OEM charset", 255}};

constexpr std::array<std::int32_t, 7> kCodePages = {437, 850, 857, 866, 1251, 1252, 1254};
constexpr int kOtherCodePage = 5;
static_assert(kCodePages[kOtherCodePage] == 1252);

constexpr int kColored = 3;  // the dialog's own number for it, beside the set file's 2

std::string withMarkOfLocale(std::string_view number) {
  std::string text(trimmed(number));
  std::replace(text.begin(), text.end(), '.', decimalSeparator());
  return text;
}

}  // namespace

std::span<const CharsetEntry> charsetEntries() {
  return kCharsets;
}

int entryOfCharset(std::uint8_t charset) {
  const auto* const found =
      std::find_if(std::begin(kCharsets), std::end(kCharsets),
                   [charset](const CharsetEntry& entry) { return entry.charset == charset; });
  return found == std::end(kCharsets) ? -1 : static_cast<int>(found - std::begin(kCharsets));
}

int entryOfCodePage(std::int32_t codePage) {
  const auto* const found = std::find(kCodePages.begin(), kCodePages.end(), codePage);
  return found == kCodePages.end() ? kOtherCodePage : static_cast<int>(found - kCodePages.begin());
}

std::int32_t codePageOfEntry(int entry) {
  const auto place = static_cast<std::size_t>(entry);
  return kCodePages[place < kCodePages.size() ? place : kOtherCodePage];
}

int colorChoice(std::int32_t printColor) {
  if (printColor < 0 || printColor > kColored) return -1;
  return printColor <= 1 ? printColor : kColored;
}

std::int32_t numberOfItem(std::string_view item) {
  return parseInteger(upTo(item, '|')).value_or(0);
}

std::string_view nameOfItem(std::string_view item) {
  const auto bar = item.find('|');
  return bar == std::string_view::npos ? item : item.substr(bar + 1);
}

// A name may look like a size itself: the size stands last.
std::optional<PaperSides> sidesOfItem(std::string_view item, std::int32_t orientation) {
  constexpr std::string_view kOpen = "  (";
  constexpr std::string_view kBetween = " x ";
  const auto open = item.rfind(kOpen);
  if (open == std::string_view::npos) return std::nullopt;
  const std::string_view size = item.substr(open + kOpen.size());
  const auto between = size.find(kBetween);
  const auto end = size.find("mm)");
  if (between == std::string_view::npos || end == std::string_view::npos || end < between)
    return std::nullopt;
  const auto second = between + kBetween.size();
  PaperSides sides = {withMarkOfLocale(size.substr(0, between)),
                      withMarkOfLocale(size.substr(second, end - second))};
  if (orientation != 1) std::swap(sides.width, sides.height);
  return sides;
}

std::string limitsText(std::int32_t smallest, std::int32_t largest) {
  return "min = " + FloatToStr(smallest / 10.0) + " mm, max = " + FloatToStr(largest / 10.0) +
         " mm";
}

}  // namespace qor
