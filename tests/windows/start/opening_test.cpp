// Opening other reports: by the dialog, the list of recent ones and dropping, in programs of their
// own.
#include <QDropEvent>
#include <QFileDialog>
#include <QListWidget>
#include <QMimeData>
#include <QTableWidget>

#include "platform/system/directory.h"
#include "support/variable.h"
#include "window_model/recent_reports.h"
#include "windows/start/start_window.h"
#include "windows/view/command_table.h"
#include "windows/view/window.h"
#include "windows/x_server.h"

namespace qor::test {
namespace {

TEST(RecentReports, keepTheLastTenOnce) {
  std::filesystem::remove(settingsFile());
  QtUserSettings settings;
  EXPECT_TRUE(recentReports(settings).empty());
  for (int i = 1; i <= 12; ++i) noteReport(settings, "/r/" + std::to_string(i));
  noteReport(settings, "/r/5");
  settings.save();
  const std::vector<std::string> expected =
      wordsOf("/r/5 /r/12 /r/11 /r/10 /r/9 /r/8 /r/7 /r/6 /r/4 /r/3");
  EXPECT_EQ(recentReports(QtUserSettings()), expected);
  forgetReport(settings, "/r/12");
  forgetReport(settings, "/r/none");
  EXPECT_EQ(recentReports(settings).size(), 9U);
  EXPECT_EQ(recentReports(settings)[1], "/r/11");
  // Each window knows what the others have opened.
  QtUserSettings other;
  noteReport(other, "/r/other");
  noteReport(settings, "/r/own");
  forgetReport(other, "/r/5");
  for (const QtUserSettings* window : {&settings, &other})
    EXPECT_EQ(recentReports(*window).at(1), "/r/other");
}

// A drop of these files.
void drop(QWidget& on, const std::vector<std::string>& files) {
  QMimeData data;
  QList<QUrl> places;
  for (const std::string& file : files) places.append(QUrl::fromLocalFile(qtText(file)));
  data.setUrls(places);
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
  QCoreApplication::sendEvent(&on, &enter);
  EXPECT_EQ(enter.isAccepted(), !files.empty());
  QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
  QCoreApplication::sendEvent(&on, &event);
}

// What is gone is told and forgotten; the window and what it says of its own report stay.
TEST(ReportOpening, tellsOfReportsThatAreGone) {
  Window window({reportOfPages(2)});
  QtUserSettings settings;
  noteReport(settings, "/nowhere/a&b.txt");
  settings.save();
  window.parts().menu->popup({1, 1});
  auto& menu = window.control<QMenu>("mnuRecent");
  ASSERT_EQ(menu.actions().size(), 1);
  EXPECT_EQ(menu.actions().front()->text(), "/nowhere/a&&b.txt");
  menu.actions().front()->trigger();
  EXPECT_EQ(window.status(), "/nowhere/a&b.txt is not there any more.");
  window.parts().menu->popup({1, 1});
  EXPECT_EQ(menu.actions().front()->text(), "None yet");
  EXPECT_FALSE(menu.actions().front()->isEnabled());
  window.control<QMenu>("mnuPopup").close();
  drop(window.form(), {"/nowhere/c.txt"});
  EXPECT_EQ(window.status(), "/nowhere/c.txt is not there any more.");
  drop(window.form(), {});
  EXPECT_EQ(window.page(), 1);
}

TEST(StartWindow, offersWhatWasOpenedLast) {
  std::filesystem::remove(settingsFile());
  QtUserSettings settings;
  for (const char* path : {"/nowhere/a.txt", "/else/b.txt"}) noteReport(settings, path);
  StartWindow start(settings);
  start.show();
  auto& list = *start.findChild<QListWidget*>("lstRecent");
  auto& message = *start.findChild<QLabel*>("lblMessage");
  ASSERT_EQ(list.count(), 2);
  EXPECT_EQ(list.item(0)->text(), "b.txt    /else");
  EXPECT_FALSE(message.isVisible());
  emit list.itemActivated(list.item(0));
  EXPECT_EQ(message.text(), "/else/b.txt is not there any more.");
  EXPECT_EQ(list.count(), 1);
  EXPECT_TRUE(start.isVisible());
  QTest::keyClick(&start, Qt::Key_Escape);
  EXPECT_FALSE(start.isVisible());
}

// Every key that the window knows.
TEST(KeyHelp, showsCommandsAndKeys) {
  Window window({reportOfPages(2)});
  bool seen = false;
  QTimer::singleShot(0, &window.form(), [&] {
    auto* help = QApplication::activeModalWidget();
    ASSERT_NE(help, nullptr);
    const auto& table = *help->findChild<QTableWidget*>("lstKeys");
    std::map<std::string, std::string> rows;
    for (int i = 0; i < table.rowCount(); ++i)
      rows[table.item(i, 0)->text().toStdString()] = table.item(i, 1)->text().toStdString();
    EXPECT_EQ(rows["Ctrl+O"], "Open...");
    EXPECT_EQ(rows["Ctrl++, Ctrl+="], "Zoom in");
    EXPECT_EQ(rows["Shift+F9"], "Starts QorUtlCalc");
    EXPECT_EQ(rows["F1"], "Keys and guide");
    seen = true;
    help->close();
  });
  window.press("F1");
  EXPECT_TRUE(seen);
}

// The program on a real X server: what its command line says of one report it doesn't say of
// another.
TEST(OpeningProgram, opensReportsByTheirPathsAlone) {
  XServer server;
  const TemporaryDirectory place;
  const std::string odd = "a -g -dd b.txt";
  place.write(odd, reportOfPages(2));
  place.write("r.txt", reportOfPages(3));
  const Surroundings around{place.path(),
                            {{"CUPS_SERVER", "/nowhere"},
                             {"XDG_CONFIG_HOME", place.path("config")},
                             {"DISPLAY", server.display()},
                             {"QT_QPA_PLATFORM", "xcb"}}};
  Process program({QOR_PROGRAM, "--open", odd}, around);
  const xcb_window_t window = server.waitForWindow();
  ASSERT_NE(window, XCB_NONE);
  ASSERT_TRUE(server.waitForPage(window));
  server.askToClose(window);
  expectTold(program.wait(), "");
  EXPECT_TRUE(place.has(odd));
  EXPECT_FALSE(place.has("a -g -dd b(print).pdf"));
  const std::string stored = place.read("config/QOR/QorUtlView.ini");
  EXPECT_NE(stored.find(odd), std::string::npos) << stored;
  expectTold(run({QOR_PROGRAM, "--open", "none.txt"},
                 {place.path(), {{"DISPLAY", ""}, {"QT_QPA_PLATFORM", "xcb"}}, 0}),
             "none.txt", 255);
}

}  // namespace
}  // namespace qor::test
