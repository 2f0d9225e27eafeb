// Records of the workbook.
#include "platform/workbook/xls_globals.h"

#include "platform/workbook/biff_records.h"
#include "platform/workbook/cell_formats.h"
#include "platform/workbook/workbook_writer.h"

namespace qor {
namespace {

// Number 4 is no font in any file, and those before it are the usual one.
constexpr std::uint32_t kUsualFonts = 4;
constexpr std::uint32_t kTwipsPerPoint = 20;

void appendFont(const CellFont& font, std::string& bytes) {
  LittleEndian body;
  body.u16(static_cast<std::uint32_t>(font.size) * kTwipsPerPoint).u16(font.italic ? 2 : 0);
  body.u16(static_cast<std::uint32_t>(font.colour)).u16(font.bold ? 700 : 400).u16(0).u16(0);
  const BiffText name(font.name);
  body.u8(static_cast<std::uint32_t>(font.charset)).u8(0);
  body.u8(static_cast<std::uint32_t>(name.units.size()));
  name.appendTo(body);
  appendRecord(kBiffFont, body, bytes);
}

void appendNumberFormat(NumberFormat format, std::string& bytes) {
  const BiffText code(formatCode(format));
  LittleEndian body;
  body.u16(formatNumber(format)).u16(static_cast<std::uint32_t>(code.units.size()));
  code.appendTo(body);
  appendRecord(kBiffNumberFormat, body, bytes);
}

void appendCellFormat(std::uint32_t font, std::uint32_t code, std::uint32_t kind,
                      std::uint32_t ofItsOwn, std::string& bytes) {
  constexpr std::uint32_t kAtTheBottom = 0x20;
  constexpr std::uint32_t kNoFilling = 0x20C0;
  appendRecord(kBiffCellFormat,
               LittleEndian()
                   .u16(font)
                   .u16(code)
                   .u16(kind)
                   .u8(kAtTheBottom)
                   .u16(0)
                   .u8(ofItsOwn)
                   .u32(0)
                   .u32(0)
                   .u16(kNoFilling),
               bytes);
}

void appendCellFormats(const CellFormats& formats, std::string& bytes) {
  constexpr std::uint32_t kStyle = 0xFFF5;
  constexpr std::uint32_t kCell = 0x0001;
  constexpr std::uint32_t kAllOfParent = 0xF4;
  constexpr std::uint32_t kFontAndCode = 0x0C;
  for (std::uint32_t i = 0; i < kXlsFirstCellFormat; ++i)
    appendCellFormat(0, 0, kStyle, i == 0 ? 0 : kAllOfParent, bytes);
  for (const CellFormat& format : formats.formats()) {
    const auto font = static_cast<std::uint32_t>(format.font);
    appendCellFormat(font == 0 ? 0 : font + kUsualFonts, formatNumber(format.number), kCell,
                     kFontAndCode, bytes);
  }
}

}  // namespace

std::string xlsBof(XlsPart part) {
  std::string bytes;
  appendRecord(kBiffBof,
               LittleEndian()
                   .u16(0x0600)
                   .u16(part == XlsPart::workbook ? 0x0005 : 0x0010)
                   .u16(0x0DBB)
                   .u16(1996)
                   .u32(0x41)
                   .u32(0x06),
               bytes);
  return bytes;
}

std::string xlsEnd() {
  std::string bytes;
  appendRecord(kBiffEof, {}, bytes);
  return bytes;
}

std::string xlsGlobals(const CellFormats& formats) {
  std::string bytes = xlsBof(XlsPart::workbook);
  constexpr std::uint32_t kUtf16 = 1200;
  appendRecord(kBiffCodePage, LittleEndian().u16(kUtf16), bytes);
  // A window of a usual size, on the first sheet.
  appendRecord(
      kBiffWindow1,
      LittleEndian().u16(360).u16(270).u16(14940).u16(9150).u16(0x38).u16(0).u16(0).u16(1).u16(600),
      bytes);
  appendRecord(kBiffDateMode, LittleEndian().u16(0), bytes);
  for (std::uint32_t i = 1; i < kUsualFonts; ++i) appendFont(formats.fonts().front(), bytes);
  for (const CellFont& font : formats.fonts()) appendFont(font, bytes);
  for (auto number = static_cast<int>(NumberFormat::whole);
       number <= static_cast<int>(NumberFormat::date); ++number)
    appendNumberFormat(static_cast<NumberFormat>(number), bytes);
  appendCellFormats(formats, bytes);
  constexpr std::uint32_t kBuiltIn = 0x8000;
  appendRecord(kBiffStyle, LittleEndian().u16(kBuiltIn).u8(0).u8(0xFF), bytes);
  return bytes;
}

std::string xlsSheetList(const std::vector<std::uint64_t>& places, std::uint64_t start) {
  std::string bytes;
  for (std::size_t number = 0; number < places.size(); ++number) {
    const BiffText name(sheetName(number));
    LittleEndian body;
    body.u32(start + places[number]).u16(0).u8(static_cast<std::uint32_t>(name.units.size()));
    name.appendTo(body);
    appendRecord(kBiffBoundSheet, body, bytes);
  }
  return bytes;
}

}  // namespace qor
