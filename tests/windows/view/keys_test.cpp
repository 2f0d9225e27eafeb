// Keys, wheel and mouse in the window, and its table of commands. Pages are A4 on the printer that
// makes files, higher than the window at 100 percent.
#include <QAction>
#include <QMouseEvent>
#include <QToolButton>

#include "window_model/preview_texts.h"
#include "windows/view/command_table.h"
#include "windows/view/window.h"

namespace qor::test {
namespace {

constexpr int kEnd = -1;  // of the page, in the place of pixels

// With Ctrl eight pages or steps on, where there are so many. A walk up or down goes on with the
// page before or behind. F9 without Shift and F4, whose command is off, are nothing.
TEST(PreviewKeys, answersEachKey) {
  // A page and a place on it, and those that the key leads to.
  const std::tuple<const char*, int, int, int, int> rows[] = {
      {"PgDown", 5, 0, 6, 0},       {"PgDown", 20, kEnd, 20, 0},  {"PgUp", 5, 0, 4, 0},
      {"PgUp", 1, kEnd, 1, 0},      {"Ctrl+PgDown", 5, 0, 13, 0}, {"Ctrl+PgDown", 13, 0, 20, 0},
      {"Ctrl+PgUp", 11, 0, 3, 0},   {"Ctrl+PgUp", 8, 0, 1, 0},    {"Ctrl+PgUp", 1, kEnd, 1, 0},
      {"End", 5, 0, 5, kEnd},       {"Home", 5, kEnd, 5, 0},      {"Ctrl+End", 5, 0, 20, kEnd},
      {"Ctrl+Home", 5, kEnd, 1, 0}, {"Down", 5, 0, 5, 20},        {"Down", 5, kEnd, 6, 0},
      {"Down", 20, kEnd, 20, kEnd}, {"Ctrl+Down", 5, 0, 5, 160},  {"Up", 5, 0, 4, kEnd},
      {"Up", 1, 0, 1, 0},           {"F9", 5, 0, 5, 0},           {"F4", 5, 0, 5, 0}};
  Window window({reportOfPages(20), Window::zoomed(6)});
  const int end = window.area().verticalScrollBar()->maximum();
  ASSERT_GT(end, 160);
  for (const auto& [key, fromPage, from, page, place] : rows) {
    SCOPED_TRACE(testing::Message() << key << " on page " << fromPage);
    window.press("Ctrl+Home");
    window.press("PgDown", fromPage - 1);
    if (from == kEnd) window.press("End");
    EXPECT_EQ(window.press(key), page);
    EXPECT_EQ(window.scrolled(), place == kEnd ? end : place);
  }
}

TEST(PreviewKeys, movesAPageThatIsWiderToo) {
  Window window({reportOfPages(1), Window::zoomed(3)});
  QScrollBar& bar = *window.area().horizontalScrollBar();
  const int step = bar.singleStep();
  const int end = bar.maximum();
  const std::pair<const char*, int> rows[] = {
      {"Right", step}, {"Shift+End", end}, {"Ctrl+Left", end - 8 * step}, {"Shift+Home", 0}};
  for (const auto& [key, place] : rows) {
    window.press(key);
    EXPECT_EQ(bar.value(), place) << key;
  }
  const auto drag = [&window](QEvent::Type type, QPoint point) {
    QMouseEvent event(type, point, window.area().mapToGlobal(point), Qt::LeftButton, Qt::LeftButton,
                      {});
    QCoreApplication::sendEvent(&window.pageControl(), &event);
  };
  drag(QEvent::MouseButtonPress, {300, 300});
  for (const QPoint to : {QPoint(290, 275), QPoint(280, 250)}) drag(QEvent::MouseMove, to);
  drag(QEvent::MouseButtonRelease, {280, 250});
  drag(QEvent::MouseMove, {200, 100});
  EXPECT_EQ(window.scrolled(), 50);
  EXPECT_EQ(bar.value(), 20);
}

TEST(PreviewKeys, turnPagesAtTheirEndsUnlessTheyAreAMenus) {
  Window window({reportOfPages(3), Window::zoomed(6)});
  EXPECT_EQ(window.wheel(120), 1);
  window.press("End");
  const int end = window.scrolled();
  EXPECT_EQ(window.wheel(-120), 2);
  EXPECT_EQ(window.scrolled(), 0);
  EXPECT_EQ(window.wheel(120), 1);
  EXPECT_EQ(window.scrolled(), end);
  // Keys that come at once, as where the window was busy for a while, keep their order.
  for (int i = 0; i < 3; ++i) {
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, {});
    QCoreApplication::sendEvent(window.form().windowHandle(), &down);
  }
  EXPECT_EQ(window.page(), 2);
  EXPECT_EQ(window.scrolled(), 40);
  auto& menu = window.control<QMenu>("mnuPopup");
  window.press("Shift+F10");
  ASSERT_TRUE(menu.isVisible());
  for (const char* key : {"PgDown", "Esc"}) EXPECT_EQ(window.press(key), 2);
  EXPECT_TRUE(window.form().isVisible());
  menu.close();
  window.press("Esc");
  EXPECT_FALSE(window.form().isVisible());
}

TEST(PreviewKeys, goesToATypedPage) {
  Window window({reportOfPages(20), Window::zoomed(6)});
  auto& edit = window.control<QLineEdit>("txtPageCurrentEdit");
  const std::tuple<const char*, int, int> rows[] = {
      {"7", 7, 0}, {"0", 7, 100}, {"", 7, 100}, {"99", 20, 0}, {"1x2", 12, 0}, {"12345678", 20, 0}};
  for (const auto& [typed, page, scrolled] : rows) {
    window.press("lblPageCurrent");
    ASSERT_TRUE(edit.isVisible());
    edit.clear();
    window.area().verticalScrollBar()->setValue(100);
    QTest::keyClicks(&edit, typed);
    EXPECT_LE(edit.text().size(), 6);
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(window.page(), page) << typed;
    EXPECT_EQ(window.scrolled(), scrolled) << typed;
    EXPECT_FALSE(edit.isVisible());
  }
  window.press("lblPageCurrent");
  edit.setText("3");
  EXPECT_EQ(window.press("cmdView_Prev"), 2) << "a move starts from what was typed";
  EXPECT_FALSE(edit.isVisible());
  // While it is typed, the edit has its own keys: 17, 7, 79, 9, 19.
  window.press("lblPageCurrent");
  for (const auto& key : wordsOf("1 7 Home Del End 9 Left Backspace 1 Right Down Up"))
    window.press(key);
  EXPECT_EQ(edit.text(), "19");
  EXPECT_EQ(window.scrolled(), 0);
  EXPECT_EQ(window.press("Esc"), 2) << "nothing was asked for";
  EXPECT_FALSE(edit.isVisible());
  EXPECT_TRUE(window.form().isVisible());
}

// A line of the README's table of keys as far as the rows say it.
std::string lineOf(std::span<const KeyUse> keys, std::string_view does) {
  std::string texts;
  for (const KeyUse& key : keys) {
    if (!key.isNone()) texts += (texts.empty() ? "" : ", ") + key.text().toStdString();
  }
  return texts.empty() ? "" : "| " + texts + " | " + std::string(does);
}

TEST(Commands, standInTheReadmeWithTheirKeys) {
  SelectInterfaceTexts(1252);
  std::vector<std::string> expected;
  for (const CommandRow& row : commandTable()) {
    const std::string line = lineOf(row.keys, previewTexts().*row.text);
    if (!line.empty()) expected.push_back(line);
  }
  for (const KeyRow& row : keyTable())
    expected.push_back(lineOf({&row.key, 1}, previewTexts().*row.does));
  const QString readme = qtText(readFile(QOR_SOURCE_DIR "/README.md"));
  const QString table = readme.section("| Key | Does |\n|---|---|\n", 1).section("\n\n", 0, 0);
  const QStringList lines = table.split('\n');
  ASSERT_EQ(lines.size(), static_cast<int>(expected.size()));
  for (qsizetype i = 0; i < lines.size(); ++i)
    EXPECT_TRUE(lines[i].startsWith(qtText(expected[static_cast<std::size_t>(i)])))
        << lines[i].toStdString();
}

// Its button and its entry of the menu are the same command, whose key stands beside it.
TEST(Commands, areTheSameInToolbarAndMenu) {
  Window window({reportOfPages(3), {{"MultipageView", 1}}});
  int buttons = 0;
  for (const CommandRow& row : commandTable()) {
    SCOPED_TRACE(row.id);
    const auto& entry = window.control<QAction>(row.id);
    const QString text = qtText(previewTexts().*row.text);
    const QStringList parts = entry.text().split('\t');
    EXPECT_EQ(parts.front(), text);
    EXPECT_EQ(parts.size() > 1, !row.keys[0].isNone());
    if (!row.hasButton()) continue;
    ++buttons;
    const auto& button = window.control<QToolButton>(row.button.name);
    EXPECT_EQ(button.toolTip(), parts.size() > 1 ? text + " (" + parts[1] + ")" : text);
    EXPECT_EQ(button.accessibleName(), text);
    EXPECT_EQ(button.isEnabled(), entry.isEnabled());
    EXPECT_EQ(button.isChecked(), entry.isChecked());
  }
  EXPECT_EQ(buttons, 16);
}

// Behind a command that fails the page is on view again, and can be left and come back to.
TEST(Commands, leaveThePageOnViewWhateverTheyThrow) {
  const std::pair<std::string, std::function<void()>> rows[] = {
      {"no memory", [] { throw std::runtime_error("no memory"); }},
      {"no paper", [] { throw PrintError("no paper"); }},
      {"", [] { throw NumberedError(2, ""); }}};
  const auto commands = rowsOf("F4 cmdView_SetPrinter|F5 cmdView_Mail|F6 cmdView_Convert");
  for (const auto& [told, fail] : rows) {
    Window::Start start{reportOfPages(3), Window::zoomed(6)};
    start.commands.settings = [&fail](QWidget&, VDoc& doc, PreviewKind) {
      doc.GetPage(2)->ReleaseLines();
      fail();
      return SettingsAnswer();
    };
    start.commands.mail = [&fail](const ExportCall&) { fail(); };
    start.commands.convert = [&fail](const ExportCall&) { fail(); };
    Window window(start);
    for (const auto& [key, button] : commands) {
      SCOPED_TRACE(told + button);
      for (const std::string& pressed : {key, button}) {
        const int page = window.press("PgDown");
        EXPECT_EQ(window.press(pressed), page);
        // What has a number was told where it arose.
        const std::string status = window.status();
        EXPECT_TRUE(told.empty() ? status.empty() : status.find(told) != status.npos) << status;
        EXPECT_GE(window.firstInk(), 0);
        EXPECT_NE(window.parts().pages.loadedPage(), nullptr);
      }
      window.press("Ctrl+Home");
    }
  }
}

}  // namespace
}  // namespace qor::test
