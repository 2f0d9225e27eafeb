// What the window finds out about pages behind the user's back: how they begin, and what of them it
// doesn't show.
#include <QAbstractButton>
#include <QMenu>

#include <gtest/gtest.h>

#include "document/code_page.h"
#include "platform/qt/qt_text.h"
#include "preview/model/zoom_list.h"
#include "preview/window.h"
#include "support/program.h"

namespace qor::test {
namespace {

// Lets the window do what it does while nobody asks for anything.
void idle(Window& window) {
  for (int i = 0; i < 2000; ++i) {
    QCoreApplication::processEvents();
    const bool known = window.doc().KnownStarts() >= window.page();
    if (known && i > 20) return;
    if (!known) QTest::qWait(1);
  }
}

// The inside of the sheet, without its frame.
QImage sheetOf(const QImage& picture) {
  return picture.copy(2, 2, 780, 1000).convertToFormat(QImage::Format_RGB32);
}

QImage onView(Window& window) {
  idle(window);
  return sheetOf(window.picture("page_control"));
}

// A page on view is the page of a run that reads all of them in their order.
TEST(PreviewNotes, pagesLookAsWhenAllAreReadInOrder) {
  const std::string report =
      "\033&l8Done <b>two\r\n\f\r\nthree<h1>four\r\n\r\nx\f\r\n<i>five <w1>six\r\n\f\r\n"
      "seven<h1/>eight\r\n\033W0nine\f\r\n<u>ten<vs>\r\neleven\r\n";
  Window window({report, {{"ZoomID", kNaturalZoomEntry}, {"ShowUnprintable", 0}}});
  window.directory().write("r.txt", report);
  ASSERT_EQ(runViewer({"-f", window.directory().path("r.txt"), "-codepage", "1251", "-export",
                       window.directory().path("r.png")})
                .errors,
            "");
  const auto expected = [&window](int page) {
    const std::string name = "r(" + std::to_string(page) + ").png";
    return sheetOf(QImage(qtText(window.directory().path(name))));
  };
  window.press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(onView(window), expected(5));
  for (const int page : {2, 4, 1, 3, 5}) {
    window.form().resize(1000 + page, 800);
    window.press(Qt::Key_Home, Qt::ControlModifier);
    for (int i = 1; i < page; ++i) window.press(Qt::Key_PageDown);
    EXPECT_EQ(window.page(), page);
    EXPECT_EQ(onView(window), expected(page)) << page;
  }
}

TEST(PreviewNotes, tellWhatTheSheetDoesNotShow) {
  const std::string lines80 = [] {
    std::string lines;
    for (int i = 0; i < 86; ++i) lines += "line\r\n";
    return lines;
  }();
  const std::string longText = "a\n" + std::string(5000, 'b');
  struct Row {
    std::string report;
    int given;  // code page on the command line
    std::string note;
  };
  // 74 lines of 227 twips and 99 characters of 120 twips fit the sheet.
  const std::vector<Row> rows = {
      {"all of it\r\n", 0, ""},
      {lines80, 0, "12 lines are outside the sheet: wide view"},
      {lines80 + std::string(197, 'c') + "\r\n", 0,
       "13 lines and 98 columns are outside the sheet: wide view"},
      {std::string(100, 'c') + "\r\n", 0, "1 column is outside the sheet: wide view"},
      {std::string(99, 'c') + "      \r\n", 0, ""},
      {"\xD0\xB0\xD0\xB1\r\n", 0,
       "The report is text in UTF-8 and shows wrong letters: convert it to a code page"},
      {"a\nb\n", 0, "Lines end with LF alone and run together: end them with CR LF"},
      {longText, 0,
       "4901 columns are outside the sheet: wide view"
       "Lines end with LF alone: they are shown as lines"},
      {"plain\r\n", 866, "The settings have chosen code page 1251, and not the command line's"},
  };
  for (const Row& row : rows) {
    Window window({row.report, Window::zoomed(kNaturalZoomEntry)});
    AppOptions.CodePageGiven = row.given != 0;
    if (row.given != 0) AppOptions.DocCodePage = row.given;
    window.form().ShowPage();
    idle(window);
    const auto& bar = window.control<QLabel>("noteBarText");
    EXPECT_EQ(bar.isVisible(), !bar.text().isEmpty());
    EXPECT_EQ(window.status() + bar.text().toStdString(), row.note);
  }
}

TEST(PreviewNotes, ofTheReportStayAwayOnceClosed) {
  Window window({"a\nb\n\fc\n\f", Window::zoomed(kNaturalZoomEntry)});
  idle(window);
  EXPECT_TRUE(window.control("noteBar").isVisible());
  window.click("noteBarClose");
  window.press(Qt::Key_PageDown);
  idle(window);
  EXPECT_FALSE(window.control("noteBar").isVisible());
}

TEST(PreviewNotes, leadToTheWideViewByAClick) {
  Window window({std::string(150, 'w') + "\r\n", Window::zoomed(kNaturalZoomEntry)});
  idle(window);
  ASSERT_EQ(window.status(), "51 columns are outside the sheet: wide view");
  window.click("stBarMessage");
  idle(window);
  EXPECT_TRUE(window.control<QAbstractButton>("cmdView_WideView").isChecked());
  EXPECT_NEAR(window.view().width(), 150 * 8, 4);
  EXPECT_EQ(window.status(), "");
  window.click("stBarMessage");
  EXPECT_TRUE(window.control<QAbstractButton>("cmdView_WideView").isChecked());
  window.click("cmdView_NormalView");
  idle(window);
  window.click("stBarPages");
  EXPECT_TRUE(window.control<QAbstractButton>("cmdView_NormalView").isChecked());
}

TEST(PreviewNotes, codePagesChangeTheViewAtOnce) {
  Window window({"\xC0\xC1\xC2 letters\r\n", Window::zoomed(kNaturalZoomEntry)});
  const auto choose = [&window](int codePage) {
    auto& menu = window.control<QMenu>("mnuPopup");
    emit window.area().customContextMenuRequested({5, 5});
    auto* codePages = menu.findChild<QMenu*>("mnuCodePage");
    QAction* chosen = nullptr;
    std::string ticked;
    for (QAction* entry : codePages->actions()) {
      if (entry->isChecked()) ticked += entry->text().toStdString();
      if (entry->data().toInt() == codePage) chosen = entry;
    }
    if (chosen != nullptr) chosen->trigger();
    menu.close();
    return ticked;
  };
  const QImage cyrillic = onView(window);
  EXPECT_EQ(choose(28591), "1251 - Windows");
  const QImage latin = onView(window);
  EXPECT_NE(latin, cyrillic);
  EXPECT_EQ(choose(1252), "28591 - ISO 8859-1");
  EXPECT_NE(onView(window), latin);
  EXPECT_EQ(window.status(),
            "Code page 1252 leaves out letters: choose another one in the menu, as 28591");
  EXPECT_EQ(choose(1251), "1252 - Windows");
  EXPECT_EQ(onView(window), cyrillic);
  EXPECT_EQ(window.status(), "");
}

TEST(PreviewNotes, knowWhetherTheReportWasSeen) {
  Window window({reportOfPages(2)});
  EXPECT_TRUE(window.form().hasShownReport());
  window.directory().write("report.txt", reportOfPages(3));
  EXPECT_FALSE(window.form().hasShownReport()) << "nobody has seen what it is now";
  Window blank({""});
  EXPECT_FALSE(blank.form().hasShownReport());
}

}  // namespace
}  // namespace qor::test
