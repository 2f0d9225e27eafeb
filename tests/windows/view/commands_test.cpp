// The table of commands: what is told of it elsewhere, and what becomes of commands that fail.
#include <QAction>
#include <QToolButton>
#include <stdexcept>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "support/program.h"
#include "window_model/preview_texts.h"
#include "windows/view/command_table.h"
#include "windows/view/window.h"

namespace qor::test {
namespace {

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
  for (const KeyRow& row : keyTable()) expected.push_back(lineOf({&row.key, 1}, row.does));
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
  EXPECT_EQ(buttons, 14);
}

// Behind a command that fails the page is on view again, and can be left and come back to.
TEST(Commands, leaveThePageOnViewWhateverTheyThrow) {
  const std::pair<const char*, std::function<void()>> rows[] = {
      {"no memory", [] { throw std::runtime_error("no memory"); }},
      {"no paper", [] { throw PrintError("no paper"); }},
      {"", [] { throw NumberedError(2, ""); }}};
  const std::pair<Qt::Key, const char*> commands[] = {{Qt::Key_F4, "cmdView_SetPrinter"},
                                                      {Qt::Key_F5, "cmdView_Mail"},
                                                      {Qt::Key_F6, "cmdView_Convert"}};
  for (const auto& [told, fail] : rows) {
    Window::Start start{reportOfPages(3), Window::zoomed(6)};
    start.commands.settings = [&fail](VDoc& doc, PreviewKind) {
      doc.GetPage(2)->ReleaseLines();
      fail();
      return SettingsAnswer();
    };
    start.commands.mail = [&fail](VDoc&) { fail(); };
    start.commands.convert = [&fail](VDoc&, ViewState&) { fail(); };
    Window window(start);
    for (const auto& [key, button] : commands) {
      SCOPED_TRACE(std::string(told) + " " + button);
      for (const bool byKey : {true, false}) {
        window.press(Qt::Key_PageDown);
        const int page = window.page();
        EXPECT_EQ(byKey ? window.press(key) : window.click(button), page);
        EXPECT_NE(window.status().find(told), std::string::npos) << window.status();
        EXPECT_EQ(window.status().empty(), *told == 0) << "the user knows it already";
        EXPECT_GE(window.firstInk(), 0);
        EXPECT_NE(window.parts().pages.loadedPage(), nullptr);
      }
      window.press(Qt::Key_Home, Qt::ControlModifier);
    }
  }
}

}  // namespace
}  // namespace qor::test
