// The window of a start without a report.
#include "windows/start/start_window.h"

#include <QFileDialog>
#include <QListWidget>

#include <sys/stat.h>

#include "window_model/recent_texts.h"
#include "windows/start/opened.h"

namespace qor::test {
namespace {

// Only what is gone for sure is forgotten; the window goes where nothing is left to tell.
TEST(StartWindow, staysToTellWhatItDidNotOpen) {
  const Opened opened;
  const TemporaryDirectory& place = opened.place();
  std::vector<std::string> many;
  for (int i = 0; i < 12; ++i) many.push_back(std::to_string(i) + ".txt");
  for (const std::string& name : many) place.write(name, "A\r\n");
  std::filesystem::create_directory(place.path("dir"));
  ::mkfifo(place.path("pipe").c_str(), 0600);
  std::filesystem::create_symlink("nowhere", place.path("link"));
  const std::vector<std::string> ten(many.begin(), many.begin() + 10);
  struct Row {
    std::vector<std::string> asked, opened;
    std::string told;
    bool kept;  // the last one, in the list
  };
  const Row rows[] = {{{"0.txt"}, {"0.txt"}, "", true},
                      {{"0.txt", "1.txt"}, {"0.txt", "1.txt"}, "", true},
                      {{"gone", "0.txt", "lost"},
                       {"0.txt"},
                       "gone is not there any more.|lost is not there any more.",
                       false},
                      {{"dir"}, {}, "dir can't be opened.", true},
                      {{"pipe"}, {}, "pipe can't be opened.", true},
                      {{"link"}, {}, "link can't be opened.", true},
                      {{"unmounted/r"}, {}, "unmounted/r can't be opened.", true},
                      {ten, ten, "", true},
                      {many, ten, "10 of 12 reports opened: ten at a time is the most.", true}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.asked.back());
    QtUserSettings settings;
    std::vector<std::string> paths;
    for (const std::string& name : row.asked) paths.push_back(place.path(name));
    noteRecent(settings, kRecentReports, paths.back());
    StartWindow start(settings);
    start.show();
    drop(start, paths);
    opened.expect(row.opened);
    QString told = start.findChild<QLabel*>("lblMessage")->text();
    told.remove(qtText(place.path())).replace('\n', '|');
    EXPECT_EQ(told.toStdString(), row.told);
    EXPECT_EQ(start.isVisible(), !row.told.empty());
    EXPECT_EQ(recentTexts(settings, kRecentReports).front() == paths.back(), row.kept);
  }
}

TEST(StartWindow, isDrivenByKeys) {
  const Opened opened;
  std::filesystem::remove(settingsFile());
  QtUserSettings settings;
  for (const char* name : {"c.txt", "b.txt", "a.txt"}) {
    opened.place().write(name, "A\r\n");
    noteRecent(settings, kRecentReports, opened.place().path(name));
  }
  StartWindow start(settings);
  start.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&start));
  auto& list = *start.findChild<QListWidget*>("lstRecent");
  const auto press = [&](Qt::Key key) {
    QTest::keyClick(start.focusWidget(), key);
    QCoreApplication::processEvents();
  };
  // Whether the key asks for a file.
  const auto asks = [&](Qt::Key key) {
    const bool asked = bringsUp<QFileDialog>([&] { press(key); });
    start.activateWindow();
    return asked;
  };
  EXPECT_EQ(start.focusWidget()->objectName(), "cmdOpen");
  EXPECT_TRUE(asks(Qt::Key_Return));
  EXPECT_TRUE(start.isVisible()) << "nothing was chosen";
  press(Qt::Key_Tab);
  EXPECT_EQ(start.focusWidget(), &list);
  EXPECT_EQ(list.item(0)->text().toStdString() + "/", "a.txt    " + opened.place().path());
  press(Qt::Key_Down);
  std::filesystem::remove(opened.place().path("b.txt"));
  EXPECT_FALSE(asks(Qt::Key_Return));
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(list.currentRow(), 1);
  EXPECT_EQ(start.focusWidget(), &list);
  EXPECT_TRUE(start.isVisible());
  EXPECT_FALSE(asks(Qt::Key_Enter));
  opened.expect({"c.txt"});
  EXPECT_FALSE(start.isVisible());
  // The last one is gone, too: what its key finds then is for the next one.
  for (const char* name : {"a.txt", "c.txt"})
    forgetRecent(settings, kRecentReports, opened.place().path(name));
  noteRecent(settings, kRecentReports, opened.place().path("b.txt"));
  StartWindow empty(settings);
  empty.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&empty));
  const std::pair<Qt::Key, bool> rows[] = {{Qt::Key_Tab, false},
                                           {Qt::Key_Enter, false},
                                           {Qt::Key_Enter, true},
                                           {Qt::Key_Tab, false},
                                           {Qt::Key_Return, true}};
  for (const auto& [key, isAsked] : rows) {
    const bool asked = bringsUp<QFileDialog>([&empty, pressed = key] {
      QTest::keyClick(empty.focusWidget(), pressed);
      QCoreApplication::processEvents();
    });
    EXPECT_EQ(asked, isAsked);
    empty.activateWindow();
  }
  const auto& none = *empty.findChild<QListWidget*>("lstRecent");
  ASSERT_EQ(none.count(), 1);
  EXPECT_EQ(none.item(0)->text(), "None yet");
  QTest::keyClick(&empty, Qt::Key_Escape);
  EXPECT_FALSE(empty.isVisible());
}

}  // namespace
}  // namespace qor::test
