// Following a report that another program writes.
#include "window_model/growth_watch.h"

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "support/report_reader.h"

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
    EXPECT_TRUE(watch.isFollowing()) << appended;
    std::ofstream(AppOptions.FileName, std::ios::app) << appended;
    EXPECT_EQ(watch.tick(&report.doc()), growth) << appended;
    EXPECT_EQ(report.doc().PageCount, pages) << appended;
    blinks = !blinks && growth != Growth::complete;
    EXPECT_EQ(watch.blinks(), blinks) << appended;
    EXPECT_EQ(watch.fileState(), FileState::asIndexed);
  }
  EXPECT_FALSE(watch.isFollowing());
  EXPECT_EQ(watch.tick(nullptr), Growth::none);
  std::ofstream(AppOptions.FileName, std::ios::app) << "more";
  EXPECT_EQ(watch.fileState(), FileState::changed);
  std::filesystem::remove(AppOptions.FileName);
  EXPECT_EQ(watch.fileState(), FileState::gone);
  EXPECT_EQ(watch.tick(&report.doc()), Growth::none);
  EXPECT_EQ(report.doc().PageCount, 4) << "what was there stays on view";
}

}  // namespace
}  // namespace qor::test
