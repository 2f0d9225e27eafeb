// Pages begin where the page before them ended, whatever was read before, in whatever order and how
// often.
#include <random>

#include "support/recording_canvas.h"
#include "support/test.h"

namespace qor::test {
namespace {

constexpr int kPages = 6;

// What leaves something to what comes behind it, opened more often than closed.
const std::vector<std::string> kPieces = linesOf(
    "word|text |<b>|<b/>|<i>|<h1>|<h1/>|<w1>|<w1/>|<u>|<font/>|<font height=7>|"
    "<font vs=2/>|<font hs=1 fcINT=255/>|\033W1|\033W0|\017|\022|\033&l8D|\033&l6C|"
    "\033(s3B|\033&d0D|\033w1|\033E|\r\n|\r\n\r\n|\r\nline\r\n|\rover",
    '|');

std::string randomReport(std::mt19937& random) {
  const auto upTo = [&random](std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
  };
  std::string report = upTo(2) == 0 ? "\033W1\033&l9D" : "";
  for (int page = 1; page <= kPages; ++page) {
    for (std::size_t i = upTo(12) + 4; i > 0; --i) report += kPieces[upTo(kPieces.size())];
    report += "\r\nEnd of page " + std::to_string(page) + "\r\n" + (page < kPages ? "\f\r\n" : "");
  }
  return report;
}

// The page as it is drawn; its margins are counted in cells of its grid.
std::string drawn(VDoc& doc, int number) {
  doc.Settings.Page.MarginLeft = doc.Settings.Page.MarginTop = -2;
  const std::string record = test::drawn(*doc.GetPage(number));
  doc.ReleasePage(number);
  return record;
}

TEST(RunningFonts, arePartOfThePageAndNotOfWhoReadIt) {
  std::mt19937 random(20);
  for (int round = 0; round < 60; ++round) {
    const std::string bytes = randomReport(random);
    SCOPED_TRACE(bytes);
    TestReport sequential(bytes);
    std::vector<std::string> expected;
    for (int page = 1; page <= kPages; ++page) expected.push_back(drawn(sequential.doc(), page));
    TestReport jumping(bytes);
    VDoc& doc = jumping.doc();
    for (int i = 0; i < 20; ++i) {
      const int page = std::uniform_int_distribution<int>(1, kPages)(random);
      doc.ReadUpTo(page);
      ASSERT_EQ(drawn(doc, page), expected[static_cast<std::size_t>(page - 1)]) << page;
      if (i % 7 == 3) doc.ForgetFonts();
      if (i % 7 == 5) doc.ScanPages(false);
    }
  }
}

TEST(RunningFonts, startAtTheNearestPageThatIsKnown) {
  TestReport report("<b>a\f\r\n<i>b\f\r\nc\f\r\nd");
  VDoc& doc = report.doc();
  EXPECT_EQ(report.dump(4), "line\n  text \"d\"\n");
  EXPECT_EQ(doc.KnownStarts(), 1);
  report.dump(1);
  EXPECT_EQ(report.dump(4), "line\n  text \"d\" weight=700\n");
  EXPECT_EQ(report.dump(4), "line\n  text \"d\" weight=700\n");
  EXPECT_EQ(doc.KnownStarts(), 2);
  doc.ReadUpTo(4);
  EXPECT_EQ(doc.KnownStarts(), 4);
  EXPECT_EQ(report.dump(4), "line\n  text \"d\" weight=700 italic=1\n");
  // Another font of the settings is another report.
  doc.Settings.Font.Height = 20;
  EXPECT_EQ(report.dump(4), "line\n  text \"d\" height=20\n");
  doc.ReadUpTo(99);
  EXPECT_EQ(report.dump(4), "line\n  text \"d\" height=20 weight=700 italic=1\n");
}

// The settings are those of the report, and stay what they are whatever its pages say.
TEST(RunningFonts, leaveTheSettingsAlone) {
  TestReport report("\033W1a<h1>\f\r\nb");
  VDoc& doc = report.doc();
  doc.ReadUpTo(2);
  doc.ScanPages(false);
  EXPECT_EQ(doc.Settings.Font, FontState());
  EXPECT_EQ(doc.HeaderLength, 3U);
  EXPECT_EQ(doc.FontAt(1).WidthFactor, 2);
  // The head stands on whatever the settings say.
  doc.Settings.Font.WidthFactor = 0.5;
  doc.Settings.Font.Height = 12;
  EXPECT_EQ(doc.FontAt(1).WidthFactor, 1);
  EXPECT_EQ(doc.FontAt(1).Height, 12);
}

}  // namespace
}  // namespace qor::test
