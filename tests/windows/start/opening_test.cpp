// Opening other reports: by the dialog, the list of recent ones and dropping, in programs of their
// own.
#include <QFileDialog>
#include <QListWidget>

#include "platform/qt/qt_language.h"
#include "window_model/recent_texts.h"
#include "windows/start/opened.h"
#include "windows/start/report_name.h"
#include "windows/start/start_window.h"

namespace qor::test {
namespace {

TEST(RecentReports, keepTheLastTenOnce) {
  std::filesystem::remove(settingsFile());
  QtUserSettings settings;
  EXPECT_TRUE(recentTexts(settings, kRecentReports).empty());
  for (int i = 1; i <= 12; ++i) noteRecent(settings, kRecentReports, "/r/" + std::to_string(i));
  noteRecent(settings, kRecentReports, "/r/5");
  settings.save();
  const std::vector<std::string> expected =
      wordsOf("/r/5 /r/12 /r/11 /r/10 /r/9 /r/8 /r/7 /r/6 /r/4 /r/3");
  EXPECT_EQ(recentTexts(QtUserSettings(), kRecentReports), expected);
  forgetRecent(settings, kRecentReports, "/r/12");
  forgetRecent(settings, kRecentReports, "/r/none");
  EXPECT_EQ(recentTexts(settings, kRecentReports).size(), 9U);
  EXPECT_EQ(recentTexts(settings, kRecentReports)[1], "/r/11");
  // Names from before UTF-8, and those that look like what stands for them.
  for (const char* odd : {"/r/\xEF\xF0%41.txt", "bytes:/r/a", "/r/\nб,\"c\".txt"}) {
    noteRecent(settings, kRecentReports, odd);
    EXPECT_EQ(recentTexts(QtUserSettings(), kRecentReports).front(), odd);
    forgetRecent(settings, kRecentReports, odd);
  }
  // Each window knows what the others have opened.
  QtUserSettings other;
  noteRecent(other, kRecentReports, "/r/other");
  noteRecent(settings, kRecentReports, "/r/own");
  forgetRecent(other, kRecentReports, "/r/5");
  for (const QtUserSettings* window : {&settings, &other})
    EXPECT_EQ(recentTexts(*window, kRecentReports).at(1), "/r/other");
}

// A window's own report stays on view, whatever becomes of others.
TEST(ReportOpening, opensFromTheWindowOfAnother) {
  const Opened opened;
  Window window({reportOfPages(2)});
  QtUserSettings settings;
  const std::string file = opened.place().write("a&b.txt", "A\r\n");
  const std::string old = opened.place().write("\xEF.txt", "A\r\n");
  for (const std::string& path : {old, file}) noteRecent(settings, kRecentReports, path);
  auto& menu = window.control<QMenu>("mnuRecent");
  for (const char* name : {"a&b.txt", "\xEF.txt"}) {
    window.parts().menu->popup({1, 1});
    ASSERT_EQ(menu.actions().size(), 2);
    menu.actions()[name[0] == 'a' ? 0 : 1]->trigger();
    opened.expect({name});
  }
  window.control<QMenu>("mnuPopup").close();
  drop(window.form(), {file, old});
  opened.expect({"a&b.txt", "\xEF.txt"});
  const auto chooseFirst = [&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().path().toStdString() + "/", opened.place().path());
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText("\"a&b.txt\"");
    static_cast<QDialog&>(dialog).accept();
  };
  EXPECT_TRUE(bringsUp<QFileDialog>([&] { window.press("Ctrl+O"); }, chooseFirst));
  opened.expect({"a&b.txt"});
  EXPECT_EQ(window.status(), "");
  std::filesystem::remove(file);
  std::filesystem::remove(old);
  drop(window.form(), {opened.place().path("b"), opened.place().path("c")});
  EXPECT_EQ(std::ranges::count(window.status(), '.'), 2) << window.status();
  EXPECT_EQ(window.status().find('\n'), std::string::npos) << "the bar has one line";
  for (const std::string& path : {file, old}) {
    window.parts().menu->popup({1, 1});
    menu.actions().front()->trigger();
    EXPECT_NE(window.status().find(" is not there any more."), std::string::npos) << path;
  }
  window.parts().menu->popup({1, 1});
  EXPECT_EQ(menu.actions().front()->text(), "None yet");
  EXPECT_FALSE(menu.actions().front()->isEnabled());
  window.control<QMenu>("mnuPopup").close();
  drop(window.form(), {});
  EXPECT_EQ(window.page(), 1);
}

// Whatever a path holds it takes one line, of which the name is seen.
TEST(ReportName, isALineOfSomeWidth) {
  const QFontMetrics metrics(QApplication::font());
  EXPECT_EQ(menuTextOf("/nowhere/a&b.txt", metrics), "a&&b.txt    /nowhere");
  EXPECT_EQ(menuTextOf("/r.txt", metrics), "r.txt    /");
  const std::string bad = "\t\n\x7F\xE2\x80\xAE\xE2\x80\xA8\xFF";
  EXPECT_EQ(menuTextOf("/d/" + bad + "😀.txt", metrics).toStdString(),
            "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD😀.txt    /d");
  const std::string far =
      "/first/" + std::string(3000, 'd') + "/last/" + std::string(250, 'n') + ".txt";
  for (const QString& text : {menuTextOf(far, metrics), shortPath(far, metrics)}) {
    EXPECT_LT(metrics.horizontalAdvance(text), 100 * metrics.averageCharWidth());
    EXPECT_TRUE(text.contains("/first/d") && text.contains("n.txt")) << text.toStdString();
  }
  QtUserSettings settings;
  noteRecent(settings, kRecentReports, far);
  StartWindow start(settings);
  start.show();
  auto& list = *start.findChild<QListWidget*>("lstRecent");
  const QRect line = list.visualItemRect(list.item(0));
  EXPECT_LE(line.width(), list.viewport()->width());
  drop(start, {far});
  QCoreApplication::processEvents();
  EXPECT_EQ(start.width(), 560) << "a message doesn't widen it";
  noteRecent(settings, kRecentReports, "/" + std::string(20, 'W') + "/" + std::string(10, 'W'));
  StartWindow second(settings);
  second.show();
  const auto darkest = [&](int from, int to) {
    auto& shown = *second.findChild<QListWidget*>("lstRecent");
    const QImage image = shown.viewport()->grab().toImage();
    int least = 255;
    for (int y = 0; y < line.height(); ++y)
      for (int x = from; x < to; ++x) least = std::min(least, qGray(image.pixel(x, y)));
    return least;
  };
  const int name = metrics.horizontalAdvance(QString(10, 'W'));
  EXPECT_LT(darkest(0, name) + 50, darkest(name + 14, 2 * name));
}

TEST(QtLanguage, isTheInterfaces) {
  const auto lookIn = [] {
    return QCoreApplication::translate("QFileDialog", "Look in:").toStdString();
  };
  const std::pair<const char*, const char*> rows[] = {{"ru", "Перейти к:"},
                                                      {"tr", "Arama konumu:"},
                                                      {"en", "Look in:"},
                                                      {"ru", "Перейти к:"},
                                                      {"none", "Look in:"}};
  for (const auto& [language, text] : rows) {
    translateQt(language);
    EXPECT_EQ(lookIn(), text) << language;
  }
}

}  // namespace
}  // namespace qor::test
