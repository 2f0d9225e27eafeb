// The window as a whole: what it stores, its languages, its file and its commands.
#include "windows/view/window.h"

#include <QListView>

namespace qor::test {
namespace {

TEST(PreviewWindow, keepsTheUsersSettings) {
  const Settings plain = {
      {"ZoomID", -1},       {"FlagFullWindow", 0}, {"ShowUnprintable", 1}, {"ListView", 0},
      {"MultipageView", 0}, {"PreviewType", 0},    {"ID_of_Convert", 0},   {"ImageSaveHTML", 0},
      {"ImageSaveDoc", 0},  {"CheckBMP", 0},       {"CheckJPEG", 0},       {"CheckICO", 0},
      {"CheckGIF", 0},      {"CheckPNG", 0},       {"CheckPdf", 0},        {"CheckScale", 0}};
  const std::pair<Settings, Settings> rows[] = {
      // As they are stored, and what then differs from the plain ones, if not the same.
      {{}, {{"CheckJPEG", 1}}},
      {{{"ZoomID", 14}, {"PreviewType", 7}, {"CheckICO", 1}}, {{"CheckICO", 1}}},
      {{{"ZoomID", 3}, {"FlagFullWindow", 1}, {"ShowUnprintable", 0}, {"CheckJPEG", 1}}, {}},
      {{{"ListView", 1}, {"ImageSaveHTML", 1}, {"CheckGIF", 1}, {"CheckPdf", 1}}, {}},
      {{{"MultipageView", 1}, {"ImageSaveDoc", 1}, {"CheckBMP", 1}, {"CheckScale", 1}}, {}},
      {{{"ZoomID", 13}, {"ID_of_Convert", 5}, {"CheckPNG", 1}}, {}},
      {{{"ZoomID", 10}, {"PreviewType", 1}, {"CheckICO", 1}}, {}},
      // A wide view keeps no fitting zoom.
      {{{"ZoomID", 11}, {"PreviewType", 1}}, {{"ZoomID", 6}, {"PreviewType", 1}, {"CheckJPEG", 1}}},
      {{{"ZoomID", 13}, {"PreviewType", 1}}, {{"ZoomID", 6}, {"PreviewType", 1}, {"CheckJPEG", 1}}},
  };
  for (const auto& [stored, changed] : rows) {
    Settings expected = changed.empty() ? stored : changed;
    expected.insert(plain.begin(), plain.end());
    EXPECT_EQ(Window({reportOfPages(1), stored}).close(), expected);
  }
}

// As another program reads the file. One that was broken is told of, and written whole again.
TEST(PreviewWindow, storesWhatTheUserChoosesAtOnce) {
  Window::Start start{.report = reportOfPages(3), .brokenSettings = "[General\nZoomID=3\n]]]no"};
  start.commands.convert = [](const ExportCall& call) { call.state.CheckPdf = true; };
  Window window(start);
  EXPECT_EQ(window.control<QComboBox>("cmbZoom").currentText(), "100%");
  for (const int page : {1, 2}) {
    EXPECT_NE(window.status().find(settingsFile()), std::string::npos) << page;
    window.press("PgDown");
  }
  for (const auto& [choice, line] : rowsOf(
           "- ZoomID=7|Ctrl+- ZoomID=8|mnuMultiPage MultipageView=true|mnuListView ListView=true|"
           "mnuUnprintable ShowUnprintable=false|mnuFullScreen FlagFullWindow=true|"
           "mnuWideView PreviewType=1|mnuConvert CheckPdf=true")) {
    window.press(choice);
    const std::string text = readFile(settingsFile());
    EXPECT_NE(text.find(line + "\n"), std::string::npos) << line << " in " << text;
  }
}

TEST(PreviewWindow, keepsItsToolsInPlaceAndDescribesItsPage) {
  Window window({reportOfPages(12), Window::zoomed(6)});
  const int place = window.control("cmdView_Next").x();
  EXPECT_EQ(window.press("Ctrl+End"), 12);
  EXPECT_EQ(window.area().accessibleDescription(), "100%");
  EXPECT_EQ(window.control("lblPageCurrent").accessibleDescription(), "12");
  EXPECT_EQ(window.control("cmdView_Next").x(), place) << "a digit more";
  window.press("lblPageCurrent");
  EXPECT_TRUE(window.control("txtPageCurrentEdit").isVisible());
  EXPECT_EQ(window.control("cmdView_Next").x(), place) << "while a number is typed";
  window.press("Ctrl+-");
  EXPECT_EQ(window.area().accessibleDescription(), "75%");
}

TEST(PreviewWindow, speaksThreeLanguages) {
  const struct {
    const char *language, *own, *title, *hint, *pages, *none;
  } rows[] = {{"ru", "Русский", "  Предварительный просмотр документа",
               "Следующая страница (PgDown)", "Страница 1 из 3", "Нет страниц"},
              {"tr", "Türkçe", " Belgenin önizlemesi", "Sonraki sayfa (PgDown)", "Sayfa 1 / 3",
               "Sayfa yok"},
              {"en", "English", " Print preview of document", "Next page (PgDown)", "Page 1 of 3",
               "No pages"}};
  for (const auto& row : rows) {
    Window empty({""});
    empty.form().chooseLanguage(languageOf(row.language));
    EXPECT_EQ(empty.status("stBarPages"), row.none);
    EXPECT_NE(empty.status("message"), "");
    for (const auto& name : wordsOf("PgDown End cmdView_MultiPage lblPageCurrent lblPageTotal")) {
      EXPECT_EQ(empty.press(name), 0);
      EXPECT_FALSE(empty.control("txtPageCurrentEdit").isVisible()) << name;
    }
    Window window({reportOfPages(3), {{"ListView", 1}}});
    window.form().chooseLanguage(languageOf(row.language));
    EXPECT_EQ(window.form().windowTitle().toStdString(), row.title);
    EXPECT_EQ(window.control("cmdView_Next").toolTip().toStdString(), row.hint);
    EXPECT_EQ(window.status("stBarPages"), row.pages);
    for (const QAction* entry : window.control<QMenu>("mnuLanguage").actions())
      EXPECT_EQ(entry->isChecked(), entry->text() == row.own) << row.own;
    const QVariant line = window.control<QListView>("lstPages").model()->index(0, 0).data();
    EXPECT_TRUE(qtText(row.pages).startsWith(line.toString().trimmed())) << row.pages;
    EXPECT_EQ(AppOptions.DocCodePage, 1251) << "the report stays in its code page";
  }
}

TEST(PreviewWindow, tellsHowToLeaveThePageAlone) {
  Window window({reportOfPages(3), {{"FlagFullWindow", 1}}});
  auto& hint = window.control<QLabel>("passingHint");
  window.resize({900, 600});
  const QRect area = window.area().rect();
  EXPECT_NEAR(hint.geometry().center().x(), area.center().x(), 1);
  EXPECT_NEAR(hint.geometry().bottom(), area.bottom() - 20, 20);
  EXPECT_EQ(hint.text(), "F11 shows the toolbar again");
  for (const bool alone : {true, false, true, false}) {
    EXPECT_EQ(hint.isVisible(), alone);
    EXPECT_NE(window.control("pTools").isVisible(), alone);
    EXPECT_NE(window.control("stBar").isVisible(), alone);
    window.press("F11");
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return !hint.isVisible(); }, 60000)) << "it passes";
}

TEST(PreviewWindow, followsAReportThatAnotherProgramWrites) {
  Window window({.report = "", .dynamic = true});
  EXPECT_EQ(window.status("message"), "Waiting for the first page of the report.");
  const std::pair<const char*, int> rows[] = {
      {"one", 0}, {"\r\n\ftwo\r\n\fthr", 2}, {"ee\r\n", 2}, {"\f", 3}, {"last\r\n\032", 4}};
  for (const auto& [appended, total] : rows) {
    std::ofstream(Window::path(), std::ios::app) << appended;
    window.form().TimerDynamicBlincTimer();
    EXPECT_EQ(window.status("lblPageTotal"), std::to_string(total)) << appended;
    EXPECT_EQ(window.page(), total > 0 ? 1 : 0) << "the page on view stays";
    EXPECT_EQ(window.firstInk() >= 0, total > 0) << "the first page appears by itself";
  }
  EXPECT_EQ(window.press("Ctrl+End"), 4);
  EXPECT_EQ(window.status(), "");
  std::filesystem::resize_file(Window::path(), 0);
  window.press("PgUp");
  EXPECT_NE(window.status().find(": became shorter since its pages were found: page 3"),
            std::string::npos);
}

// Behind the command stands a dialog that counts and answers.
TEST(PreviewWindow, printsWhatTheSettingsDialogAsksFor) {
  using enum DialogResult;
  const std::tuple<DialogResult, int, int> rows[] = {
      {cancel, 0, 0}, {apply, 0, 0}, {print, 0, 5}, {print, 1, 1}, {print, 2, 2}};
  for (const auto& [result, pagesSet, printed] : rows) {
    int asked = 0;
    Window::Start start{reportOfPages(5)};
    start.commands.settings = [&](QWidget&, VDoc& doc, PreviewKind) {
      ++asked;
      doc.Settings.Page.PrintPagesSet = pagesSet;
      doc.Settings.Page.PagesForPrint = "2-3";
      return SettingsAnswer{result, false};
    };
    Window window(start);
    window.press("PgDown");
    EXPECT_EQ(window.press("F4"), 2) << "the view stays where it was";
    EXPECT_EQ(asked, 1);
    const std::string file = window.directory().path("report(print).pdf");
    EXPECT_EQ(std::filesystem::exists(file) ? readPdf(file).pages : 0, printed);
  }
}

}  // namespace
}  // namespace qor::test
