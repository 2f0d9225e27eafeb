// The window as a whole: what it stores, its languages, its file and its commands.
#include "windows/view/window.h"

#include <QComboBox>
#include <QListView>
#include <QMenu>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "language/language.h"
#include "support/pdf_reader.h"
#include "support/program.h"

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

TEST(PreviewWindow, storesWhatTheUserChoosesAtOnce) {
  const std::pair<const char*, std::function<void(ViewParts&)>> rows[] = {
      {"ZoomID=3", [](ViewParts& parts) { parts.zoom.mnuZoomListClick(3); }},
      {"ZoomID=4", [](ViewParts& parts) { parts.zoom.cmdView_ZoomOutClick(); }},
      {"MultipageView=true", [](ViewParts& parts) { parts.switches.rbMultiPageViewClick(true); }},
      {"ListView=true", [](ViewParts& parts) { parts.switches.mnuListViewClick(); }},
      {"ShowUnprintable=false", [](ViewParts& parts) { parts.switches.mnuUnprintableClick(); }},
      {"FlagFullWindow=true", [](ViewParts& parts) { parts.switches.mnuFullScreenClick(); }},
      {"PreviewType=1",
       [](ViewParts& parts) { parts.switches.cmdView_SetPreviewTypeClick(kWideView); }},
      {"CheckPdf=true", [](ViewParts& parts) { parts.forms.cmdView_ConvertClick(); }},
  };
  Window::Start start{reportOfPages(3)};
  start.commands.convert = [](VDoc&, ViewState& state) { state.CheckPdf = true; };
  Window window(start);
  for (const auto& [line, choose] : rows) {
    choose(window.parts());
    // As another program reads the file.
    const std::string text = readFile(settingsFile());
    EXPECT_NE(text.find(std::string(line) + "\n"), std::string::npos) << line << " in " << text;
  }
}

TEST(PreviewWindow, opensWithBrokenSettings) {
  Window window({.report = reportOfPages(3), .brokenSettings = "[General\nZoomID=3\n]]]no"});
  EXPECT_EQ(window.control<QComboBox>("cmbZoom").currentText(), "100%");
  for (const int page : {1, 2}) {
    EXPECT_EQ(window.page(), page);
    EXPECT_NE(window.status().find(settingsFile()), std::string::npos) << window.status();
    window.press(Qt::Key_PageDown);
  }
  EXPECT_EQ(window.close()["ZoomID"], 6) << "written whole again";
}

TEST(PreviewWindow, keepsItsToolsInPlaceAndDescribesItsPage) {
  Window window({reportOfPages(12), Window::zoomed(6)});
  const int place = window.control("cmdView_Next").x();
  EXPECT_EQ(window.area().accessibleDescription(), "Page 1 of 12, 100%");
  EXPECT_EQ(window.press(Qt::Key_End, Qt::ControlModifier), 12);
  EXPECT_EQ(window.area().accessibleDescription(), "Page 12 of 12, 100%");
  EXPECT_EQ(window.control("lblPageCurrent").accessibleDescription(), "12");
  EXPECT_EQ(window.control("cmdView_Next").x(), place) << "a digit more";
  window.click("lblPageCurrent");
  EXPECT_TRUE(window.control("txtPageCurrentEdit").isVisible());
  EXPECT_EQ(window.control("cmdView_Next").x(), place) << "while a number is typed";
  window.press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(window.area().accessibleDescription(), "Page 12 of 12, 75%");
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
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_End}) EXPECT_EQ(empty.press(key), 0);
    for (const char* name : {"cmdView_MultiPage", "lblPageCurrent", "lblPageTotal"}) {
      EXPECT_EQ(empty.click(name), 0);
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
    const std::string page = line.toString().trimmed().toStdString();
    EXPECT_EQ(page, window.status("stBarPages").substr(0, page.size()));
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
  for (const bool alone : {true, false, true}) {
    EXPECT_EQ(hint.isVisible(), alone);
    EXPECT_NE(window.control("pTools").isVisible(), alone);
    EXPECT_NE(window.control("stBar").isVisible(), alone);
    window.press(Qt::Key_F11);
  }
  window.press(Qt::Key_F11);
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
    EXPECT_EQ(window.total(), total) << appended;
    EXPECT_EQ(window.page(), total > 0 ? 1 : 0) << "the page on view stays";
    EXPECT_EQ(window.firstInk() >= 0, total > 0) << "the first page appears by itself";
  }
  EXPECT_EQ(window.press(Qt::Key_End, Qt::ControlModifier), 4);
  EXPECT_EQ(window.status(), "");
  std::filesystem::resize_file(Window::path(), 0);
  window.press(Qt::Key_PageUp);
  EXPECT_EQ(window.status(), "The file of the report has changed since it was opened.");
}

// Behind the command stands a dialog that counts and answers.
TEST(PreviewWindow, printsWhatTheSettingsDialogAsksFor) {
  const struct {
    DialogResult result;
    int pagesSet, printed;
  } rows[] = {{DialogResult::cancel, 0, 0},
              {DialogResult::apply, 0, 0},
              {DialogResult::print, 0, 5},
              {DialogResult::print, 1, 1},
              {DialogResult::print, 2, 2}};
  for (const auto& row : rows) {
    int asked = 0;
    Window::Start start{reportOfPages(5)};
    start.commands.settings = [&](VDoc& doc, PreviewKind) {
      ++asked;
      doc.Settings.Page.PrintPagesSet = row.pagesSet;
      doc.Settings.Page.PagesForPrint = "2-3";
      return SettingsAnswer{row.result, false};
    };
    Window window(start);
    window.press(Qt::Key_PageDown);
    EXPECT_EQ(window.press(Qt::Key_F4), 2) << "the view stays where it was";
    EXPECT_EQ(asked, 1);
    const std::string file = window.directory().path("report(print).pdf");
    EXPECT_EQ(std::filesystem::exists(file) ? readPdf(file).pages : 0, row.printed);
  }
}

}  // namespace
}  // namespace qor::test
