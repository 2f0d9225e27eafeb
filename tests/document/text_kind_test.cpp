// Texts that were not written by the report generator: how they are recognised and read.
#include "document/text_kind.h"

#include "document/code_page.h"
#include "support/test.h"

namespace qor::test {
namespace {

TEST(TextKind, isToldByBytes) {
  // With "8" for UTF-8 and "n" for lines that end with LF only.
  // The first three of those without a sign are letters of 866 and 1251, and what never starts one.
  for (const auto& [bytes, expected] :
       rowsOf("\x80\x81\x82 => |\xC0\xE0\xC1\xE1 => |\xC1\x81 => |\xC3( => | => |no end => |"
              "a\nb\rc => |caf\xE9 => |\xF5\x80\x80\x80 => |caf\xC3\xA9 and caf\xE9 au lait => "
              "|plain\n => n|"
              "\xD0\x90\xD0\x91\n => 8n|\xE2\x82\xAC and \xF0\x9F\x98\x80 => 8|"
              "\xC3\xA9 cut \xE2\x82 => 8|\xEF\xBB\xBFmarked => 8",
              " => ")) {
    const TextKind kind = kindOf(bytes);
    EXPECT_EQ(std::string(kind.utf8 ? "8" : "") + (kind.lineFeedsOnly ? "n" : ""), expected);
  }
  TestReport report("\033E\xC3\xA9\n\f\r\nsecond\r\n");
  EXPECT_TRUE(kindOfFirstPage(report.doc()).utf8);
  EXPECT_FALSE(kindOfFirstPage(report.doc()).lineFeedsOnly) << "its page ends with FF CR LF";
}

// The three code pages that count as ASCII show nothing in the place of other letters.
TEST(TextKind, countsTheLettersThatAreLeftOut) {
  for (const auto& [codePage, letters] : {std::pair{1252, 3}, {850, 3}, {437, 3}, {1251, 0}}) {
    TestReport report("a\xE9\xE8<text left=1 top=1 tc=\xE9/>\r\n<text right=9 left=1 tc=\xE9/>",
                      codePage);
    LoadCodePage(codePage);
    EXPECT_EQ(lettersLeftOut(report.page()), letters) << codePage;
  }
}

std::string linesIn(const std::string& bytes, int page = 1) {
  TestReport report(bytes);
  std::string lines;
  for (const VDocStr& line : report.page(page).lines()) {
    for (const VData& item : line.items())
      if (const auto* text = dynamic_cast<const VData_Text*>(&item)) lines += text->Text;
    lines += line.LineFeeds == 0 ? "+" : "|";
  }
  return lines;
}

// A file of 4096 bytes is as the generator writes it, one of 4097 may be from another system.
TEST(TextKind, letsLineFeedsEndTheLinesOfLongTexts) {
  const auto filled = [](const std::string& start, std::size_t size) {
    return start + std::string(size - start.size(), 'x');
  };
  const std::string x(4088, 'x');
  EXPECT_EQ(linesIn(filled("ab\ncd\n\n\f", 4096)), "abcd|");
  const std::string second = filled("ab\n<b>cd\n\n\f\nef\n\r\ngh\n\f", 4097);
  EXPECT_EQ(linesIn(second), "ab|cd|||");
  EXPECT_EQ(linesIn(second, 2), "ef||gh||");
  const std::string y(31, 'y'), z(64, 'z');
  EXPECT_EQ(linesIn(y + "\r\n" + z + "\r" + x), y + "|" + z + "|" + x + "+");
  // One CR on the first page, and all is as it was.
  EXPECT_EQ(linesIn(filled("ab\ncd\r\n\f", 4097)), "abcd||");
  EXPECT_EQ(linesIn(filled("ab\ncd\f\r\n", 4097)), "abcd|+");
  EXPECT_EQ(linesIn(filled("a<text memo left=1 tc=\"b\nc\"/>\nd\f", 4097)), "ab\ncd|");
}

}  // namespace
}  // namespace qor::test
