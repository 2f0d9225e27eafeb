// What each key of a set file means.
#include "settings/set_keys.h"

#include <array>
#include <span>

#include "base/text.h"
#include "document/code_page.h"
#include "document/vset.h"
#include "platform/system/locale.h"
#include "settings/number_text.h"
#include "settings/set_lines.h"

namespace qor {
namespace {

constexpr std::string_view kDefaultPrinter = "(default printer)";

constexpr std::array<std::string_view, 5> kQualities = {"(default)", "draft", "low", "medium",
                                                        "high"};
constexpr std::array<std::string_view, 3> kColorModes = {"(default)", "monochrome", "color"};

// The place of the text among the names; 0 for any other text.
template <std::size_t Count>
std::int32_t numberOfName(std::string_view text, const std::array<std::string_view, Count>& names) {
  for (std::size_t i = 0; i < Count; ++i) {
    if (names[i] == text) return static_cast<std::int32_t>(i);
  }
  return 0;
}

std::string writePrinterName(const VSet& set) {
  return set.PrinterName == set.DefaultPrinterName ? std::string(kDefaultPrinter)
                                                   : fileText(set.PrinterName);
}

void readPrinterName(VSet& set, const std::string& value) {
  set.PrinterName = value == kDefaultPrinter ? set.DefaultPrinterName : utf8OfFileText(value);
}

void readQuality(VSet& set, const std::string& value) {
  set.Page.PrintQuality = numberOfName(value, kQualities);
}

std::string writeColorMode(const VSet& set) {
  const auto mode = static_cast<std::size_t>(set.Page.PrintColor);
  return std::string(kColorModes[mode < kColorModes.size() ? mode : 0]);
}

void readColorMode(VSet& set, const std::string& value) {
  set.Page.PrintColor = numberOfName(value, kColorModes);
}

std::string writeFaceName(const VSet& set) {
  return std::string(set.Font.LogFont.faceName());
}

void readFaceName(VSet& set, const std::string& value) {
  set.Font.LogFont.setFaceName(value);
}

std::string writePages(const VSet& set) {
  return fileText(set.Page.PagesForPrint);
}

void readPages(VSet& set, const std::string& value) {
  set.Page.PagesForPrint = utf8OfFileText(value);
}

void readCharset(VSet& set, const std::string& value) {
  const std::int32_t charset = toInteger(value);
  const bool known = charset >= 0 && charset <= 255;
  set.Font.LogFont.CharSet = static_cast<std::uint8_t>(known ? charset : AppOptions.FontCharset);
}

// A code page that nobody knows would fail each later run.
std::string writeCodePage(const VSet& set) {
  const std::int32_t codePage = set.Page.BaseCodePage;
  return std::to_string(isKnownCodePage(codePage) ? codePage : systemAnsiCodePage());
}

// Ways to reach the record that holds a field.
VSetPage& page(VSet& set) {
  return set.Page;
}
FontState& font(VSet& set) {
  return set.Font;
}
LogFont& logFont(VSet& set) {
  return set.Font.LogFont;
}

template <auto Record>
const auto& constant(const VSet& set) {
  return Record(const_cast<VSet&>(set));
}

template <auto Record, auto Field>
std::string writeWhole(const VSet& set) {
  return std::to_string(constant<Record>(set).*Field);
}

template <auto Record, auto Field>
void readWhole(VSet& set, const std::string& value) {
  Record(set).*Field =
      static_cast<std::remove_reference_t<decltype(Record(set).*Field)>>(toInteger(value));
}

std::string writeColor(const VSet& set) {
  return std::to_string(static_cast<std::int32_t>(set.Font.Color));
}

std::string writeCollate(const VSet& set) {
  return set.Page.SortByCopies ? "1" : "0";
}

void readCollate(VSet& set, const std::string& value) {
  set.Page.SortByCopies = toInteger(value) != 0;
}

template <auto Record, auto Field>
std::string writeReal(const VSet& set) {
  return FloatToStr(constant<Record>(set).*Field);
}

template <auto Record, auto Field>
void readReal(VSet& set, const std::string& value) {
  Record(set).*Field = ParseDoubleAnyLocale(value);
}

// A style is on for exactly "1".
template <auto Field>
void readStyle(VSet& set, const std::string& value) {
  set.Font.LogFont.*Field = value == "1" ? 1 : 0;
}

template <auto Field>
constexpr SetKey wholeOfPage(std::string_view name, std::string_view label) {
  return {name, label, writeWhole<page, Field>, readWhole<page, Field>};
}

template <auto Record, auto Field>
constexpr SetKey real(std::string_view name, std::string_view label) {
  return {name, label, writeReal<Record, Field>, readReal<Record, Field>};
}

template <auto Field>
constexpr SetKey style(std::string_view name, std::string_view label) {
  return {name, label, writeWhole<logFont, Field>, readStyle<Field>};
}

constexpr SetKey kPrintKeys[] = {
    {"PrinterName", "PrinterName   ", writePrinterName, readPrinterName},
    {"PrintQuality", "", nullptr, readQuality},
    {"PrintColor", "PrintColor    ", writeColorMode, readColorMode},
    wholeOfPage<&VSetPage::NumOfCopies>("NumOfCopies", "NumOfCopies   "),
    wholeOfPage<&VSetPage::PaperSource>("PaperSource", "PaperSource   "),
    wholeOfPage<&VSetPage::PrintPagesSet>("PrintPagesSet", "PrintPagesSet "),
    {"PagesForPrint", "PagesForPrint ", writePages, readPages},
    {"SortByCopies", "SortByCopies  ", writeCollate, readCollate},
};

constexpr SetKey kPageKeys[] = {
    wholeOfPage<&VSetPage::PaperSize>("PaperSize", "PaperSize     "),
    real<page, &VSetPage::PaperWidth>("PaperWidth", "PaperWidth    "),
    real<page, &VSetPage::PaperHeight>("PaperHeight", "PaperHeight   "),
    wholeOfPage<&VSetPage::Orientation>("Orientation", "Orientation   "),
    wholeOfPage<&VSetPage::MarginLeft>("MarginLeft", "MarginLeft    "),
    wholeOfPage<&VSetPage::MarginTop>("MarginTop", "MarginTop     "),
    {"BaseCodePage", "BaseCodePage  ", writeCodePage, readWhole<page, &VSetPage::BaseCodePage>},
};

constexpr SetKey kFontKeys[] = {
    {"Name", "Name          ", writeFaceName, readFaceName},
    real<font, &FontState::Height>("Height", "Height        "),
    real<font, &FontState::Width>("Width", "Width         "),
    real<font, &FontState::CharSpacing>("Space", "Space         "),
    {"Charset", "Charset       ", writeWhole<logFont, &LogFont::CharSet>, readCharset},
    {"Color", "Color         ", writeColor, readWhole<font, &FontState::Color>},
    {"Weight", "Weight        ", writeWhole<logFont, &LogFont::Weight>,
     readWhole<logFont, &LogFont::Weight>},
    style<&LogFont::Italic>("Italic", "Italic        "),
    style<&LogFont::Underline>("Underline", "Underline     "),
    style<&LogFont::StrikeOut>("StrikeOut", "StrikeOut     "),
};

constexpr SetSection kSections[] = {
    {"Print", kPrintKeys}, {"Page", kPageKeys}, {"Font", kFontKeys}};

}  // namespace

std::span<const SetSection> setSections() {
  return kSections;
}

}  // namespace qor
