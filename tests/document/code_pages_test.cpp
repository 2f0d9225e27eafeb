// The built-in code pages against the system's own tables, and those from files.
#include "document/code_page.h"
#include "platform/system/text_encoding.h"
#include "support/test.h"

namespace qor::test {
namespace {

constexpr char32_t kNone = U'\xFFFD';

TEST(CodePages, builtInOnesAreThePublishedOnesButForAFew) {
  // What differs, besides bytes without a letter, which are "?".
  const std::pair<int, std::map<int, char32_t>> rows[] = {
      {866, {}},
      {1251, {}},
      {1254, {}},
      {857,
       {{0xB6, U'╢'}, {0xC7, U'╟'}, {0xCF, U'╧'}, {0xD1, U'╤'}, {0xF8, U'\u02DA'}, {0xFF, U' '}}}};
  for (const auto& [codePage, others] : rows) {
    LoadCodePage(codePage);
    for (int byte = 128; byte < 256; ++byte) {
      const char c = static_cast<char>(byte);
      const char32_t published = codePointsFromCodePage({&c, 1}, codePage).at(0);
      const auto other = others.find(byte);
      const char32_t expected = other != others.end() ? other->second
                                : published == kNone  ? U'?'
                                                      : published;
      EXPECT_EQ(char32_t{CodePageTable[static_cast<std::size_t>(byte - 128)]}, expected)
          << codePage << " " << byte;
    }
  }
}

// The system's converter is a part of what is told above: a few letters that differ between pages.
TEST(CodePages, areToldApart) {
  const std::tuple<int, const char*, const char*> rows[] = {
      {1252, "\xD0\xDD\xE9", "ÐÝé"}, {1253, "\xC1\xE2", "Αβ"},       {28595, "\xB6\xD0\xF0", "Жа№"},
      {28599, "\xD0\xDD", "Ğİ"},     {20866, "\xA4\xC1\xF7", "╓аВ"}, {21866, "\xA4\xC1\xF7", "єаВ"},
      {10000, "\x80\x8A", "Ää"},     {437, "\x9B\xE0", "¢α"}};
  for (const auto& [codePage, bytes, text] : rows) {
    EXPECT_EQ(utf8FromCodePage(bytes, codePage), text) << codePage;
    EXPECT_EQ(codePageFromUtf8(text, codePage, Substitute::questionMark), bytes);
  }
}

TEST(CodePages, comeFromFilesOf128Lines) {
  const TemporaryDirectory place;
  std::string lines;
  for (int byte = 128; byte < 256; ++byte) {
    // What stands before the first "-" is a remark of some length.
    const std::string remark = std::to_string(byte) + std::string(20, '.') + "-";
    lines += remark + (byte % 2 == 0 ? "0x0416" : " 233") + (byte % 3 == 0 ? "\n" : "\r\n");
  }
  lines.replace(lines.rfind(" 233"), 4, "0x0411");
  place.write("cp708.ini", lines);
  place.write("r.txt", "\x80\x81\xFE\xFF");
  expectTold(runViewer({"-f", "r.txt", "-codepage", "708", "-export", "r.pdf"}, in(place)), "");
  EXPECT_EQ(run({"pdftotext", place.path("r.pdf"), "-"}).output, "ЖéЖБ\n\n\f");
}

// Of Windows' fonts.
TEST(CodePages, belongToCharacterSets) {
  const std::pair<int, int> rows[] = {{0, 1252},   {161, 1253}, {162, 1254}, {163, 1258},
                                      {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251},
                                      {222, 874},  {238, 1250}};
  for (const auto& [charset, codePage] : rows) EXPECT_EQ(codePageOfCharset(charset), codePage);
}

}  // namespace
}  // namespace qor::test
