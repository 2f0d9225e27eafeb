// The file of the report: following another program that writes it, its date, and its owner's
// number.
#include "support/test.h"
#include "window_model/file_dates.h"
#include "window_model/growth_watch.h"
#include "window_model/owner_number.h"

namespace qor::test {
namespace {

TEST(GrowthWatch, indexesWhatHasCome) {
  TestReport report("");
  AppOptions.DynamicMode = true;
  GrowthWatch watch;
  watch.follow();
  watch.noteFile();
  // What comes before a tick, how much the report has then grown, and its pages: the last one
  // counts once it is ended.
  const std::tuple<const char*, Growth, int> rows[] = {{"one", Growth::pages, 0},
                                                       {"\r\n\ftwo\r\n\fthr", Growth::pages, 2},
                                                       {"ee\r\n\f", Growth::pages, 3},
                                                       {"", Growth::none, 3},
                                                       {"last\r\n\032", Growth::complete, 4}};
  bool blinks = false;
  for (const auto& [appended, growth, pages] : rows) {
    std::ofstream(AppOptions.FileName, std::ios::app) << appended;
    EXPECT_EQ(watch.tick(&report.doc()), growth) << appended;
    EXPECT_EQ(report.doc().PageCount, pages) << appended;
    blinks = !blinks && growth != Growth::complete;
    EXPECT_EQ(watch.blinks(), blinks) << appended;
    EXPECT_EQ(watch.isFollowing(), growth != Growth::complete);
    EXPECT_EQ(watch.fileState(), FileState::asIndexed);
  }
  std::ofstream(AppOptions.FileName, std::ios::app) << "more";
  EXPECT_EQ(watch.fileState(), FileState::changed);
  std::filesystem::remove(AppOptions.FileName);
  EXPECT_EQ(watch.fileState(), FileState::gone);
}

TEST(ReportFile, hasADateAndAnOwner) {
  // Dates move the hour alone, by whole hours.
  EXPECT_EQ(fileDateText({2026, 3, 7, 23, 5}, -180), "07/03/2026  26:05");
  EXPECT_EQ(fileDateText({2026, 12, 31, 2, 45}, 310), "31/12/2026  65533:45");
  for (const auto& [name, number] : {std::pair("/tmp/rep1234.txt", 1234),
                                     {"/a.b/rep0042.txt", 42},
                                     {"r1234.new.txt", 0},
                                     {"r12345.txt", 2345},
                                     {"1.txt", 1},
                                     {"noend1234", 0}})
    EXPECT_EQ(ownerNumber(name), number) << name;
}

}  // namespace
}  // namespace qor::test
