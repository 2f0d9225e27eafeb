// Which code page a report is read in: the command line's, a set's, or a memory of earlier runs;
// and where its letters come from.
#include <gtest/gtest.h>

#include "support/pdf_reader.h"
#include "support/program.h"

namespace qor::test {
namespace {

std::string setOf(const std::string& name, int codePage) {
  return "<Set SetName=\"" + name + "\">\r\n<Page>\r\n<BaseCodePage = \"" +
         std::to_string(codePage) + "\"/>\r\n<Page/>\r\n<Set/>\r\n";
}

// Byte 0xE0 is "а" in 1251, "р" in 866, "à" in 1254, "ŕ" in 1250 and "ה" in 1255 is 0xE4.
struct Row {
  const char* what;
  std::vector<std::string> options;
  int remembered;  // by the default set, 0: there is none
  std::string letter;
};

const std::vector<Row> kRows = {
    {"the system's", {}, 0, "а"},
    {"told", {"-codepage", "866"}, 0, "р"},
    {"remembered", {}, 866, "р"},
    {"told, and not as remembered", {"-codepage", "1254"}, 866, "à"},
    {"no number, and so remembered", {"-codepage", "x"}, 866, "р"},
    {"a set's before what was told", {"-codepage", "1254", "-i", "s.vset#S"}, 866, "ŕ"},
    {"a set's that isn't there", {"-codepage", "1254", "-i", "s.vset#none"}, 866, "à"},
    {"a file's", {"-codepage", "1253"}, 0, "Ж"},
    {"the system's table", {"-codepage", "28591"}, 0, "à"},
    {"a table of letters from right to left", {"-codepage", "1255"}, 0, "א"},
};

TEST(ReportCodePages, AreChosenInTheirOrder) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.what);
    const TemporaryDirectory place;
    place.write("r.txt", "x\xE0x\r\n");
    place.write("s.vset", setOf("S", 1250));
    // Byte 0xE0 is the 97th line.
    std::string table;
    for (int i = 128; i < 256; ++i) table += std::to_string(i) + "-0x416\r\n";
    place.write("cp1253.ini", table);
    if (row.remembered != 0) place.write("QorUtlView.vset", setOf("Default", row.remembered));
    std::vector<std::string> arguments = {"-g", "-f", "r.txt"};
    arguments.insert(arguments.end(), row.options.begin(), row.options.end());
    const Outcome outcome =
        runViewer(arguments, {place.path(), {{"QOR_ANSI_CODEPAGE", "1251"}}, 0});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.errors, "");
    const PdfDocument document = readPdf(place.path("r(print).pdf"));
    ASSERT_EQ(document.words.size(), 1U);
    EXPECT_EQ(document.words.front().text, "x" + row.letter + "x");
  }
}

// It would fail each later run, too.
TEST(ReportCodePages, ThatNobodyKnowsFailOnceAndAreNotStored) {
  for (const char* number : {"99999", "932", "65001"}) {
    const TemporaryDirectory place;
    place.write("r.txt", "x\r\n");
    const Outcome failed =
        runViewer({"-g", "-dd", "-f", "r.txt", "-codepage", number}, {place.path(), {}, 0});
    EXPECT_EQ(failed.exitCode, 254);
    EXPECT_EQ(failed.errors, place.path("r.txt") + ": code page " + number +
                                 ": the system has no table of it, and there is no " +
                                 place.path("cp") + number + ".ini\n");
    EXPECT_TRUE(place.has("r.txt")) << "nobody has seen it";
    EXPECT_NE(place.read("QorUtlView.vset").find("<BaseCodePage  = \"1252\"/>"), std::string::npos);
    EXPECT_EQ(runViewer({"-g", "-f", "r.txt"}, {place.path(), {}, 0}).errors, "");
    EXPECT_TRUE(place.has("r(print).pdf"));
  }
}

}  // namespace
}  // namespace qor::test
