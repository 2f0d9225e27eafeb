// The window as a whole: what it stores, its languages, its file and its commands.
#include "preview/window.h"

#include <QAccessible>
#include <QComboBox>
#include <QListView>
#include <QSettings>
#include <QToolButton>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "support/pdf_reader.h"
#include "support/program.h"

namespace qor::test {
namespace {

TEST(PreviewWindow, readsAndWritesTheUsersSettings) {
  Window window({reportOfPages(3), {{"ZoomID", 8}, {"FlagFullWindow", 1}, {"PreviewType", 1}}});
  EXPECT_FALSE(window.control("pTools").isVisible());
  EXPECT_FALSE(window.control("stBar").isVisible());
  EXPECT_TRUE(window.control<QToolButton>("cmdView_WideView").isChecked());
  EXPECT_EQ(window.view().size(), QSize(396, 561));
  window.press(Qt::Key_F11);
  EXPECT_TRUE(window.control("pTools").isVisible());
  window.form().mnuZoomListClick(13);
  window.form().mnuUnprintableClick();
  const auto left = window.close();
  EXPECT_EQ(left.size(), 16U);
  EXPECT_EQ(left.at("ZoomID"), "6") << "a wide view keeps no fitting zoom";
  EXPECT_EQ(left.at("FlagFullWindow"), "false");
  EXPECT_EQ(left.at("ShowUnprintable"), "false");
  EXPECT_EQ(left.at("PreviewType"), "1");
  EXPECT_EQ(left.at("CheckJPEG"), "true");
}

TEST(PreviewWindow, storesWhatTheUserChoosesAtOnce) {
  struct Row {
    const char* name;
    std::function<void(TfrmView&)> choose;
    const char* stored;
  };
  const std::vector<Row> rows = {
      {"ZoomID", [](TfrmView& form) { form.mnuZoomListClick(3); }, "3"},
      {"ZoomID", [](TfrmView& form) { form.cmdView_ZoomOutClick(); }, "4"},
      {"ZoomID", [](TfrmView& form) { form.mnuFitPageClick(); }, "13"},
      {"MultipageView", [](TfrmView& form) { form.rbMultiPageViewClick(true); }, "true"},
      {"ListView", [](TfrmView& form) { form.mnuListViewClick(); }, "true"},
      {"ShowUnprintable", [](TfrmView& form) { form.mnuUnprintableClick(); }, "false"},
      {"FlagFullWindow", [](TfrmView& form) { form.mnuFullScreenClick(); }, "true"},
      {"PreviewType", [](TfrmView& form) { form.cmdView_SetPreviewTypeClick(kWideView); }, "1"},
      {"CheckPdf", [](TfrmView& form) { form.cmdView_ConvertClick(); }, "true"},
  };
  Window::Start start{reportOfPages(3)};
  start.commands.convert = [](VDoc&, ViewState& state) { state.CheckPdf = true; };
  Window window(start);
  for (const Row& row : rows) {
    row.choose(window.form());
    // Another program that reads the file, as it were.
    std::ifstream file(QSettings(QSettings::IniFormat, QSettings::UserScope, "QOR", "QorUtlView")
                           .fileName()
                           .toStdString());
    const std::string text((std::istreambuf_iterator<char>(file)), {});
    EXPECT_NE(text.find(std::string(row.name) + "=" + row.stored + "\n"), std::string::npos)
        << row.name << " in " << text;
  }
}

TEST(PreviewWindow, opensWithBrokenSettings) {
  const QString file =
      QSettings(QSettings::IniFormat, QSettings::UserScope, "QOR", "QorUtlView").fileName();
  Window window({.report = reportOfPages(3), .settingsFile = "[General\nZoomID=3\n]]]no"});
  EXPECT_NE(window.status().find(file.toStdString()), std::string::npos) << window.status();
  EXPECT_EQ(window.control<QComboBox>("cmbZoom").currentText(), "100%");
  window.press(Qt::Key_PageDown);
  EXPECT_EQ(window.page(), 2);
  EXPECT_NE(window.status().find(file.toStdString()), std::string::npos) << "it stays told";
  testing::internal::CaptureStderr();
  EXPECT_EQ(window.close()["ZoomID"], "6") << "written whole again";
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(PreviewWindow, keepsItsToolsInPlace) {
  Window window({reportOfPages(12)});
  const int place = window.control("cmdView_Next").x();
  window.press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(window.page(), 12);
  EXPECT_EQ(window.control("cmdView_Next").x(), place) << "a digit more";
  QTest::mouseClick(&window.control("lblPageCurrent"), Qt::LeftButton);
  EXPECT_TRUE(window.control("txtPageCurrentEdit").isVisible());
  EXPECT_EQ(window.control("cmdView_Next").x(), place) << "while a number is typed";
}

TEST(PreviewWindow, speaksThreeLanguages) {
  Window window({reportOfPages(3), {{"ListView", 1}}});
  struct Row {
    int codePage;
    const char* title;
    const char* hint;
    const char* pages;
    const char* line;
  };
  const auto text = [](const QString& value) { return value.toStdString(); };
  for (const Row& row :
       {Row{1251, "  Предварительный просмотр документа", "Следующая страница (PgDown)",
            "Страница 1 из 3", "   Страница 2"},
        Row{1254, " Belgenin önizlemesi", "Sonraki sayfa (PgDown)", "Sayfa 1 / 3", "   Sayfa 2"},
        Row{1252, " Print preview of document", "Next page (PgDown)", "Page 1 of 3",
            "   Page 2"}}) {
    window.form().chooseLanguage(row.codePage);
    EXPECT_EQ(text(window.form().windowTitle()), row.title);
    EXPECT_EQ(text(window.control("cmdView_Next").toolTip()), row.hint);
    EXPECT_EQ(window.status("stBarPages"), row.pages);
    const QModelIndex line = window.control<QListView>("lstPages").model()->index(1, 0);
    EXPECT_EQ(text(line.data().toString()), row.line);
    EXPECT_EQ(AppOptions.DocCodePage, 1251) << "the report stays in its code page";
  }
}

bool isEmpty(const QIcon& icon) {
  QImage blank(24, 24, QImage::Format_ARGB32);
  blank.fill(Qt::transparent);
  return icon.pixmap(24).toImage().convertToFormat(QImage::Format_ARGB32) == blank;
}

TEST(PreviewWindow, everyControlHasANameAHintAndAPicture) {
  Window window({reportOfPages(3)});
  for (const QToolButton* button : window.form().findChildren<QToolButton*>()) {
    if (!button->objectName().startsWith("cmdView_")) continue;
    EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
    EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
    EXPECT_FALSE(isEmpty(button->icon())) << button->objectName().toStdString();
  }
  EXPECT_FALSE(window.control<QToolButton>("cmdView_SetPrinter").isEnabled());
  EXPECT_FALSE(window.control<QToolButton>("cmdView_Mail").isEnabled());
  EXPECT_FALSE(window.control<QToolButton>("cmdView_Convert").isEnabled());
  EXPECT_EQ(window.form().minimumSize(), QSize(800, 480));
}

TEST(PreviewWindow, followsAReportThatAnotherProgramWrites) {
  Window window({.report = "", .dynamic = true});
  EXPECT_EQ(window.total(), 0);
  EXPECT_EQ(window.view().findChild<QLabel*>()->text(),
            "Waiting for the first page of the report.");
  struct Row {
    const char* appended;  // as printf takes it
    int total;
  };
  for (const Row& row : {Row{"one", 0}, Row{"\\r\\n\\ftwo\\r\\n\\fthr", 2}, Row{"ee\\r\\n", 2},
                         Row{"\\f", 3}, Row{"last\\r\\n\\032", 4}}) {
    run({"sh", "-c", "printf '" + std::string(row.appended) + "' >> " + window.path()});
    window.form().TimerDynamicBlincTimer();
    EXPECT_EQ(window.total(), row.total) << row.appended;
    EXPECT_EQ(window.page(), row.total > 0 ? 1 : 0) << "the page on view stays";
    EXPECT_EQ(window.firstInk() >= 0, row.total > 0) << "the first page appears by itself";
  }
  window.press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(window.page(), 4);
  EXPECT_EQ(window.status(), "");
  run({"truncate", "-s", "0", window.path()});
  window.press(Qt::Key_PageUp);
  EXPECT_EQ(window.status(), "The file of the report has changed since it was opened.");
}

TEST(PreviewWindow, saysWhatIsWrongWithTheFile) {
  {
    Window window({reportOfPages(3)});
    std::ofstream(window.path(), std::ios::app) << "more\f";
    window.press(Qt::Key_PageDown);
    EXPECT_EQ(window.status(), "The file of the report has changed since it was opened.");
    EXPECT_EQ(window.page(), 2);
    std::ofstream(window.path(), std::ios::trunc) << "x";
    window.press(Qt::Key_PageDown);
    EXPECT_NE(window.status(), "");
    std::filesystem::remove(window.path());
    window.press(Qt::Key_PageUp);
    EXPECT_NE(window.status().find("report.txt"), std::string::npos) << window.status();
    const auto texts = window.view().findChildren<QLabel*>();
    ASSERT_EQ(texts.size(), 1);
    EXPECT_TRUE(texts[0]->isVisible()) << "the page area says why, too";
    EXPECT_NE(texts[0]->text().indexOf("report.txt"), -1);
  }
  Window empty({""});
  EXPECT_EQ(empty.total(), 0);
  EXPECT_EQ(empty.view().findChild<QLabel*>()->text(), "The report has no pages.");
  empty.press(Qt::Key_PageDown);
  empty.press(Qt::Key_End, Qt::ControlModifier);
  empty.click("cmdView_MultiPage");
}

TEST(PreviewWindow, saysThatThereAreNoPages) {
  Window window({""});
  struct Row {
    int codePage;
    const char* text;
  };
  for (const Row& row : {Row{1251, "Нет страниц"}, Row{1254, "Sayfa yok"}, Row{1252, "No pages"}}) {
    window.form().chooseLanguage(row.codePage);
    EXPECT_EQ(window.status("stBarPages"), row.text);
    EXPECT_EQ(window.area().accessibleDescription().toStdString(), row.text);
  }
  EXPECT_EQ(window.page(), 0);
  for (const char* label : {"lblPageCurrent", "lblPageTotal"}) {
    window.click(label);
    EXPECT_FALSE(window.control("txtPageCurrentEdit").isVisible()) << label;
  }
}

TEST(PreviewWindow, tellsHowToLeaveThePageAlone) {
  struct Row {
    int codePage;
    const char* text;
  };
  for (const Row& row : {Row{1251, "F11 вернёт панель инструментов"},
                         Row{1254, "F11 araç çubuğunu yeniden gösterir"},
                         Row{1252, "F11 shows the toolbar again"}}) {
    Window window({reportOfPages(3)});
    window.form().chooseLanguage(row.codePage);
    auto& hint = window.control<QLabel>("passingHint");
    EXPECT_FALSE(hint.isVisible());
    window.press(Qt::Key_F11);
    EXPECT_TRUE(hint.isVisible());
    EXPECT_EQ(hint.text().toStdString(), row.text);
    window.form().resize(900, 600);
    QCoreApplication::processEvents();
    const QRect area = window.area().rect();
    EXPECT_TRUE(area.contains(hint.geometry()));
    EXPECT_NEAR(hint.geometry().center().x(), area.center().x(), 1);
    EXPECT_LT(area.bottom() - hint.geometry().bottom(), 40);
    window.press(Qt::Key_F11);
    EXPECT_FALSE(hint.isVisible()) << "the toolbar is there again";
  }
  Window window({reportOfPages(3), {{"FlagFullWindow", 1}}});
  auto& hint = window.control<QLabel>("passingHint");
  EXPECT_TRUE(hint.isVisible()) << "where the window opens so";
  EXPECT_TRUE(QTest::qWaitFor([&] { return !hint.isVisible(); }, 60000)) << "it passes";
}

// What a screen reader asks for once it hears that a description has changed.
TEST(PreviewWindow, tellsAScreenReaderItsPageAndZoom) {
  Window window({reportOfPages(12), {{"ZoomID", 6}}});
  const auto described = [&window](const char* name) {
    return QAccessible::queryAccessibleInterface(&window.control(name))
        ->text(QAccessible::Description)
        .toStdString();
  };
  EXPECT_EQ(described("pScroll"), "Page 1 of 12, 100%");
  window.press(Qt::Key_PageDown);
  EXPECT_EQ(described("pScroll"), "Page 2 of 12, 100%");
  window.press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(described("pScroll"), "Page 2 of 12, 75%");
  EXPECT_EQ(described("lblPageCurrent"), "2");
  EXPECT_EQ(described("lblPageTotal"), "12");
}

// Behind the command stands a dialog that counts and answers.
TEST(PreviewWindow, printsWhatTheSettingsDialogAsksFor) {
  struct Row {
    DialogResult result;
    int pagesSet;
    int printed;
  };
  for (const Row& row : {Row{DialogResult::cancel, 0, 0}, Row{DialogResult::apply, 0, 0},
                         Row{DialogResult::print, 0, 5}, Row{DialogResult::print, 1, 1},
                         Row{DialogResult::print, 2, 2}}) {
    int asked = 0;
    Window::Start start{reportOfPages(5)};
    start.commands.settings = [&](VDoc& doc, int) {
      ++asked;
      doc.Settings.Page.PrintPagesSet = row.pagesSet;
      doc.Settings.Page.PagesForPrint = "2-3";
      return SettingsAnswer{row.result, false};
    };
    Window window(start);
    window.press(Qt::Key_PageDown);
    window.press(Qt::Key_F4);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(window.page(), 2) << "the view stays where it was";
    const std::string file = window.directory().path("report(print).pdf");
    EXPECT_EQ(std::filesystem::exists(file) ? readPdf(file).pages : 0, row.printed);
  }
}

}  // namespace
}  // namespace qor::test
