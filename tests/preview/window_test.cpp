// The window, driven as a user drives it. Pages are A4 on the printer that makes files: 793 by 1122
// pixels at 100 percent, with a gap of 10 around the sheet.
#include "preview/window.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>
#include <fstream>

#define ZX_USE_UTF8 1
#include <ZXing/ReadBarcode.h>
#include <gtest/gtest.h>

#include "preview/model/zoom_list.h"
#include "preview/page_image.h"
#include "support/pdf_reader.h"
#include "support/program.h"

namespace qor::test {
namespace {

std::map<std::string, int> zoomed(int entry) {
  return {{"ZoomID", entry}};
}

TEST(PreviewWindow, answersEachKey) {
  struct Row {
    const char* what;
    int start;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    int page;
    const char* scrolled;  // "top", "end", or what lies between
  };
  const Qt::KeyboardModifiers none = Qt::NoModifier;
  const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
  const std::vector<Row> rows = {
      {"next", 5, Qt::Key_PageDown, none, 6, "top"},
      {"previous", 5, Qt::Key_PageUp, none, 4, "top"},
      {"next at the end", 20, Qt::Key_PageDown, none, 20, "top"},
      {"previous at the start", 1, Qt::Key_PageUp, none, 1, "top"},
      {"eight on", 5, Qt::Key_PageDown, ctrl, 13, "top"},
      {"eight on, near the end", 12, Qt::Key_PageDown, ctrl, 20, "top"},
      {"eight back", 11, Qt::Key_PageUp, ctrl, 3, "top"},
      {"eight back, near the start", 8, Qt::Key_PageUp, ctrl, 1, "top"},
      {"end of the page", 5, Qt::Key_End, none, 5, "end"},
      {"last page", 5, Qt::Key_End, ctrl, 20, "end"},
      {"first page", 5, Qt::Key_Home, ctrl, 1, "top"},
      {"one step down", 5, Qt::Key_Down, none, 5, "20"},
      {"eight steps down", 5, Qt::Key_Down, ctrl, 5, "160"},
      {"up leads to the end of the page before", 5, Qt::Key_Up, none, 4, "end"},
      {"nothing is above the first page", 1, Qt::Key_Up, none, 1, "top"},
      {"F9 alone is nothing", 5, Qt::Key_F9, none, 5, "top"},
      {"a disabled command does nothing", 5, Qt::Key_F4, none, 5, "top"},
  };
  Window window({reportOfPages(20), zoomed(kNaturalZoomEntry)});
  const int end = window.control<QScrollArea>("pScroll").verticalScrollBar()->maximum();
  ASSERT_GT(end, 160);
  for (const Row& row : rows) {
    window.press(Qt::Key_Home, ctrl);
    for (int i = 1; i < row.start; ++i) window.press(Qt::Key_PageDown);
    ASSERT_EQ(window.page(), row.start);
    window.press(row.key, row.modifiers);
    EXPECT_EQ(window.page(), row.page) << row.what;
    const std::string place = row.scrolled;
    EXPECT_EQ(window.scrolled(), place == "top"   ? 0
                                 : place == "end" ? end
                                                  : std::stoi(place))
        << row.what;
  }
}

TEST(PreviewWindow, walksThroughTheReportWithOneKey) {
  Window window({reportOfPages(3), zoomed(kNaturalZoomEntry)});
  for (int i = 0; i < 200; ++i) window.press(Qt::Key_Down);
  EXPECT_EQ(window.page(), 3);
  const int end = window.scrolled();
  EXPECT_GT(end, 0);
  window.press(Qt::Key_Down);
  EXPECT_EQ(window.scrolled(), end) << "nothing is behind the last page";
  window.press(Qt::Key_Home);
  EXPECT_EQ(window.scrolled(), 0);
}

TEST(PreviewWindow, scrollsSidewaysWhereThePageIsWider) {
  Window window({reportOfPages(1), zoomed(3)});
  QScrollBar& bar = *window.control<QScrollArea>("pScroll").horizontalScrollBar();
  window.press(Qt::Key_Right);
  EXPECT_EQ(bar.value(), bar.singleStep());
  window.press(Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(bar.value(), bar.maximum());
  window.press(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_EQ(bar.value(), bar.maximum() - 8 * bar.singleStep());
  window.press(Qt::Key_Home, Qt::ShiftModifier);
  EXPECT_EQ(bar.value(), 0);
}

TEST(PreviewWindow, hasEveryZoomOfItsList) {
  struct Row {
    int width;  // of the sheet and the gaps
    int height;
  };
  const std::vector<Row> rows = {{4068, 5712}, {3254, 4569}, {2440, 3427}, {1627, 2284},
                                 {1220, 1713}, {1016, 1427}, {813, 1142},  {609, 855},
                                 {406, 571},   {202, 284},   {97, 136},    {39, 56}};
  Window window({reportOfPages(1)});
  auto& list = window.control<QComboBox>("cmbZoom");
  EXPECT_EQ(list.currentIndex(), -1) << "nothing is stored yet";
  EXPECT_EQ(window.view().size(), QSize(813, 1142)) << "which counts as 100 percent";
  for (std::size_t i = 0; i < rows.size(); ++i) {
    list.setCurrentIndex(static_cast<int>(i));
    window.form().cmbZoomChange();
    EXPECT_EQ(window.view().size(), QSize(rows[i].width, rows[i].height)) << kZoomList[i].text;
  }
  const QSize area = window.control<QScrollArea>("pScroll").maximumViewportSize();
  window.form().mnuZoomListClick(13);
  EXPECT_NEAR(window.view().height(), area.height(), 25) << "AutoH";
  window.form().mnuZoomListClick(12);
  EXPECT_NEAR(window.view().width(), area.width(), 25) << "AutoW";
}

TEST(PreviewWindow, zoomsInSteps) {
  Window window({reportOfPages(1), zoomed(kNaturalZoomEntry)});
  auto& list = window.control<QComboBox>("cmbZoom");
  struct Row {
    std::function<void()> step;
    int entry;
  };
  auto& scroll = window.control<QScrollArea>("pScroll");
  const auto wheel = [&scroll](int delta, Qt::KeyboardModifiers modifiers) {
    QWheelEvent event({50, 50}, scroll.viewport()->mapToGlobal(QPointF(50, 50)), {}, {0, delta},
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(scroll.viewport(), &event);
  };
  const std::vector<Row> rows = {
      {[&] { window.press(Qt::Key_Plus, Qt::KeypadModifier); }, 5},
      {[&] { window.press(Qt::Key_Minus, Qt::KeypadModifier); }, 6},
      {[&] { window.click("cmdView_ZoomOut"); }, 7},
      {[&] { window.click("cmdView_ZoomIn"); }, 6},
      {[&] { wheel(120, Qt::ControlModifier); }, 5},
      {[&] { wheel(-60, Qt::ControlModifier); }, 5},
      {[&] { wheel(-60, Qt::ControlModifier); }, 6},
      // The entries of the menu from 100 percent down pick the next larger one.
      {[&] { window.control<QMenu>("mnuZoom").actions()[4]->trigger(); }, 4},
      {[&] { window.control<QMenu>("mnuZoom").actions()[5]->trigger(); }, 5},
      {[&] { window.control<QMenu>("mnuZoom").actions()[6]->trigger(); }, 6},
      {[&] { window.control<QMenu>("mnuZoom").actions()[11]->trigger(); }, 11},
      {[&] { window.control<QMenu>("mnuZoom").actions()[12]->trigger(); }, 12},
  };
  for (const Row& row : rows) {
    row.step();
    EXPECT_EQ(list.currentIndex(), row.entry);
  }
}

TEST(PreviewWindow, wheelTurnsPagesAtTheirEnds) {
  Window window({reportOfPages(3), zoomed(kNaturalZoomEntry)});
  auto& scroll = window.control<QScrollArea>("pScroll");
  const auto wheel = [&scroll](int delta) {
    QWheelEvent event({50, 50}, scroll.viewport()->mapToGlobal(QPointF(50, 50)), {}, {0, delta},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(scroll.viewport(), &event);
  };
  wheel(120);
  EXPECT_EQ(window.page(), 1);
  window.press(Qt::Key_End);
  wheel(-120);
  EXPECT_EQ(window.page(), 2);
  EXPECT_EQ(window.scrolled(), 0);
  wheel(120);
  EXPECT_EQ(window.page(), 1);
  EXPECT_GT(window.scrolled(), 0) << "back at the end of the page";
}

TEST(PreviewWindow, showsSeveralPages) {
  Window window({reportOfPages(20), zoomed(9)});
  window.click("cmdView_MultiPage");
  const QSize area = window.control<QScrollArea>("pScroll").maximumViewportSize();
  const int count = (area.width() / 202) * (area.height() / 284);
  ASSERT_GE(count, 8);
  QTest::qWait(50);
  auto pages = window.view().findChildren<PageImage*>();
  const auto shown = [](PageImage* image) { return image->isVisible(); };
  EXPECT_EQ(std::count_if(pages.begin(), pages.end(), shown), count);
  window.press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(window.page(), count + 1) << "Ctrl is nothing here";
  window.press(Qt::Key_PageUp);
  EXPECT_EQ(window.page(), 1);
  window.press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(window.page(), 20 - count + 1);
  window.press(Qt::Key_Home, Qt::ControlModifier);
  for (PageImage* image : window.view().findChildren<PageImage*>()) {
    if (image->property("tag").toInt() == 3) QTest::mouseClick(image, Qt::LeftButton);
  }
  QCoreApplication::processEvents();
  EXPECT_EQ(window.page(), 3);
  window.click("cmdView_SinglePage");
  window.press(Qt::Key_PageDown);
  EXPECT_EQ(window.page(), 4);
}

// A press on the screen, as the system reports it, moves the focus before anything else.
TEST(PreviewWindow, clicksOnPagesWhileAPageNumberIsTyped) {
  Window window({reportOfPages(20), {{"ZoomID", 9}, {"MultipageView", 1}}});
  window.click("lblPageCurrent");
  window.control<QLineEdit>("txtPageCurrentEdit").setText("2");
  const auto pages = window.view().findChildren<PageImage*>();
  const auto third = std::find_if(pages.begin(), pages.end(), [](PageImage* image) {
    return image->isVisible() && image->property("tag").toInt() == 3;
  });
  ASSERT_NE(third, pages.end());
  const QPoint place = (*third)->mapTo(&window.form(), (*third)->rect().center());
  QTest::mouseClick(window.form().windowHandle(), Qt::LeftButton, {}, place);
  QTest::qWait(20);
  EXPECT_FALSE(window.control("txtPageCurrentEdit").isVisible());
  EXPECT_TRUE(window.page() == 2 || window.page() == 3) << window.page();
}

TEST(PreviewWindow, leavesTheKeysOfAMenuToIt) {
  Window window({reportOfPages(3)});
  auto& menu = window.control<QMenu>("mnuPopup");
  menu.popup(window.form().mapToGlobal(QPoint(200, 200)));
  ASSERT_TRUE(menu.isVisible());
  window.press(Qt::Key_PageDown);
  window.press(Qt::Key_Escape);
  EXPECT_TRUE(window.form().isVisible());
  EXPECT_EQ(window.page(), 1);
  menu.close();
  window.press(Qt::Key_Escape);
  EXPECT_FALSE(window.form().isVisible());
}

TEST(PreviewWindow, wideViewHoldsTheWholeLine) {
  Window window({std::string(200, 'w') + "\r\n", zoomed(kNaturalZoomEntry)});
  window.click("cmdView_WideView");
  EXPECT_NEAR(window.view().width(), 200 * 8, 4) << "of 10 points, a twelfth of an inch each";
  EXPECT_EQ(window.view().height(), 1122);
  EXPECT_EQ(window.view().pos(), QPoint(0, 0));
  window.click("cmdView_NormalView");
  EXPECT_EQ(window.view().width(), 813);
}

TEST(PreviewWindow, scalesTheSheetUnderThePage) {
  Window window({reportOfPages(1), zoomed(kNaturalZoomEntry)});
  window.control<QLineEdit>("txtZoom").setText("200");
  window.form().ShowPageScale();
  EXPECT_EQ(window.view().size(), QSize(436, 601));
  window.form().cmbZoomChange();
  EXPECT_EQ(window.view().size(), QSize(813, 1142)) << "the next zoom ends it";
}

TEST(PreviewWindow, goesToATypedPage) {
  struct Row {
    const char* typed;
    int page;
  };
  Window window({reportOfPages(20), zoomed(kNaturalZoomEntry)});
  auto& edit = window.control<QLineEdit>("txtPageCurrentEdit");
  for (const Row& row :
       {Row{"7", 7}, Row{"0", 7}, Row{"", 7}, Row{"99", 20}, Row{"1x2", 12}, Row{"12345678", 20}}) {
    window.click("lblPageCurrent");
    ASSERT_TRUE(edit.isVisible());
    edit.clear();
    QTest::keyClicks(&edit, row.typed);
    EXPECT_LE(edit.text().size(), 6);
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(window.page(), row.page) << row.typed;
    EXPECT_FALSE(edit.isVisible());
  }
}

TEST(PreviewWindow, listsPages) {
  Window window({reportOfPages(20), {{"ListView", 1}}});
  auto& list = window.control<QListView>("lstPages");
  EXPECT_TRUE(list.isVisible());
  EXPECT_EQ(list.model()->rowCount(), 20);
  EXPECT_EQ(list.model()->index(6, 0).data().toString(), "   Page 7");
  window.press(Qt::Key_PageDown);
  EXPECT_EQ(list.currentIndex().row(), 1);
  const QRect line = list.visualRect(list.model()->index(4, 0));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, line.center());
  EXPECT_EQ(window.page(), 5);
  QWidget& divider = window.control("pSizeLine");
  QTest::mousePress(&divider, Qt::LeftButton, {}, {2, 50});
  QMouseEvent move(QEvent::MouseMove, {52, 50}, divider.mapToGlobal(QPointF(52, 50)), Qt::NoButton,
                   Qt::LeftButton, Qt::NoModifier);
  const int before = list.width();
  QCoreApplication::sendEvent(&divider, &move);
  EXPECT_EQ(list.width(), before + 50);
}

TEST(PreviewWindow, dragsThePage) {
  Window window({reportOfPages(1), zoomed(3)});
  QWidget& view = window.view();
  const auto drag = [&view](QEvent::Type type, QPoint point) {
    QMouseEvent event(type, point, view.parentWidget()->parentWidget()->mapToGlobal(point),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &event);
  };
  drag(QEvent::MouseButtonPress, {300, 300});
  drag(QEvent::MouseMove, {280, 250});
  EXPECT_EQ(window.scrolled(), 50);
  drag(QEvent::MouseButtonRelease, {280, 250});
  drag(QEvent::MouseMove, {200, 100});
  EXPECT_EQ(window.scrolled(), 50);
  EXPECT_EQ(window.control<QScrollArea>("pScroll").horizontalScrollBar()->value(), 20);
}

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
    EXPECT_EQ(window.page(), 1) << "the page on view stays";
    EXPECT_EQ(window.view().width() == 813, row.total > 0) << "the first page appears by itself";
  }
  window.press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(window.page(), 4);
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

// A form of a later day stands behind each command: here one that says what was asked of it.
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

TEST(PreviewWindow, showsTheReportsOwnBarcodes) {
  Window window(
      {"<barcode br_type=EAN_13 value=590123412345 left=20 top=20 right=100 bottom=60 "
       "value_show=1/>\r\n",
       zoomed(kNaturalZoomEntry)});
  const QImage picture = window.picture("pScroll").convertToFormat(QImage::Format_RGB32);
  const ZXing::ImageView image(picture.constBits(), picture.width(), picture.height(),
                               ZXing::ImageFormat::BGRX, static_cast<int>(picture.bytesPerLine()));
  const auto found = ZXing::ReadBarcode(image, ZXing::DecodeHints().setTryHarder(true));
  EXPECT_EQ(found.text(), "5901234123457");
}

}  // namespace
}  // namespace qor::test
