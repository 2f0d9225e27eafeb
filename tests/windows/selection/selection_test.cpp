// Selecting text of a page by mouse and keys, and copying it. Pages are drawn at 100 percent.
#include <QAction>
#include <QClipboard>
#include <QMimeData>
#include <QMouseEvent>

#include "windows/view/page_overlay.h"
#include "windows/view/text_marks.h"
#include "windows/view/window.h"

namespace qor::test {
namespace {

constexpr auto kLeft = Qt::LeftButton;
constexpr const char* kLedger =
    "Name        Amount   Date\r\n"
    "-------------------------\r\n"
    "Pears & Co    1.50 1/2/24\r\n"
    "<Apples>    120.00 2/2/24\r\n\f"
    "Other page\r\n";

constexpr const char* kWholeLedger =
    "Name        Amount   Date\n"
    "-------------------------\n"
    "Pears & Co    1.50 1/2/24\n"
    "<Apples>    120.00 2/2/24";

class Selecting : public Window {
 public:
  explicit Selecting(const std::string& report) : Window({report, zoomed(6)}) {
    QGuiApplication::clipboard()->clear();
  }

  // The middle of a gap of the page on view, pixels of the page's control.
  QPoint at(std::size_t line, std::size_t column) {
    const TextLine text = parts().text.map()->line(line);
    const bool end = column == text.text.size();
    const auto mapping = *control<PageOverlay>("pageOverlay").mapping();
    const QRectF box =
        outlinesOf(text, {column - (end ? 1 : 0), 1}, mapping).front().boundingRect();
    return {qRound(end ? box.right() - 1 : box.left() + 1), qRound(box.center().y())};
  }

  void send(QEvent::Type type, QPoint place, Qt::KeyboardModifiers with = {}) {
    const bool moves = type == QEvent::MouseMove;
    const bool up = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, place, place + corner_, moves ? Qt::NoButton : kLeft,
                      up ? Qt::NoButton : kLeft, with);
    QCoreApplication::sendEvent(&pageControl(), &event);
  }

  void drag(QPoint from, QPoint to, Qt::KeyboardModifiers with = {}) {
    corner_ = pageControl().mapToGlobal(QPoint());
    send(QEvent::MouseButtonPress, from, with);
    send(QEvent::MouseMove, (from + to) / 2, with);
    send(QEvent::MouseMove, to, with);
    send(QEvent::MouseButtonRelease, to, with);
  }

  // What Ctrl+C puts onto the clipboard, of a kind; empty where it leaves it alone.
  std::string copied(const char* kind = "text/plain") {
    QGuiApplication::clipboard()->clear();
    press("Ctrl+C");
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data == nullptr ? "" : data->data(kind).toStdString();
  }

  bool isOn(const char* command) { return control<QAction>(command).isEnabled(); }

 private:
  QPoint corner_ = pageControl().mapToGlobal(QPoint());  // of the page's control when a drag began
};

TEST(Selection, isMadeByTheTextToolOrAlt) {
  Selecting window(kLedger);
  EXPECT_FALSE(window.isOn("mnuCopy"));
  window.drag(window.at(0, 0), window.at(0, 4));
  EXPECT_EQ(window.copied(), "") << "the hand selects nothing";
  window.drag(window.at(0, 0), window.at(0, 4), Qt::AltModifier);
  EXPECT_EQ(window.copied(), "Name");
  EXPECT_EQ(window.pageControl().cursor().shape(), Qt::OpenHandCursor) << "for once";
  window.drag(window.at(2, 0), window.at(2, 4));
  EXPECT_EQ(window.copied(), "Name");
  window.press("Ctrl+T");
  EXPECT_EQ(window.pageControl().cursor().shape(), Qt::IBeamCursor);
  EXPECT_TRUE(window.control<QAction>("mnuTextTool").isChecked());
  window.drag(window.at(3, 8), window.at(2, 6));
  EXPECT_EQ(window.copied(), "      & Co    1.50 1/2/24\n<Apples>");
  EXPECT_EQ(window.copied("text/html"), "");
  window.drag(window.at(2, 10), window.at(2, 10), Qt::ShiftModifier);
  EXPECT_EQ(window.copied(), "              1.50 1/2/24\n<Apples>");
  window.click(window.pageControl(), window.at(2, 15));
  EXPECT_FALSE(window.isOn("mnuCopy")) << "a click selects nothing";
  window.press("cmdView_TextTool");
  EXPECT_EQ(window.pageControl().cursor().shape(), Qt::OpenHandCursor);
}

TEST(Selection, scrollsWithTheHandAndBeyondTheEdge) {
  Selecting window(reportWithTextAt({0, 0}));
  window.drag({300, 300}, {300, 250});
  EXPECT_EQ(window.scrolled(), 50);
  window.press("Ctrl+T");
  window.drag({300, 300}, {300, 250});
  EXPECT_EQ(window.scrolled(), 50);
  window.send(QEvent::MouseButtonPress, {300, 300});
  window.send(QEvent::MouseMove, {300, 5000});
  EXPECT_TRUE(QTest::qWaitFor([&window] { return window.area().isAtBottom(); }));
  window.send(QEvent::MouseButtonRelease, {300, 5000});
  window.press("Home");
  QTest::qWait(100);
  EXPECT_EQ(window.scrolled(), 0) << "nothing scrolls behind the release";
}

TEST(Selection, takesWordsAndLinesByClicks) {
  Selecting window(kLedger);
  window.press("Ctrl+T");
  const QPoint place = window.at(3, 14);
  const auto clicks = [&window, place] {
    window.send(QEvent::MouseButtonPress, place);
    window.send(QEvent::MouseButtonRelease, place);
    window.send(QEvent::MouseButtonDblClick, place);
    window.send(QEvent::MouseButtonRelease, place);
  };
  clicks();
  EXPECT_EQ(window.copied(), "120.00");
  clicks();
  window.send(QEvent::MouseButtonPress, place);
  window.send(QEvent::MouseButtonRelease, place);
  EXPECT_EQ(window.copied(), "<Apples>    120.00 2/2/24");
  window.press("Ctrl+A");
  EXPECT_EQ(window.copied(), kWholeLedger);
}

TEST(Selection, takesARectangleAsATable) {
  Selecting window(kLedger);
  window.press("Ctrl+T");
  window.drag(window.at(1, 12), window.at(3, 25), Qt::ControlModifier);
  EXPECT_EQ(window.copied(), "-------------\n  1.50 1/2/24\n120.00 2/2/24");
  EXPECT_EQ(window.copied("text/tab-separated-values"), "1.50\t1/2/24\n120.00\t2/2/24\n");
  window.drag(window.at(2, 0), window.at(3, 18), Qt::ControlModifier);
  EXPECT_EQ(window.copied("text/html"),
            "<meta charset=\"utf-8\"><table><tr><td>Pears &amp; Co</td><td>1.50</td></tr>\n"
            "<tr><td>&lt;Apples&gt;</td><td>120.00</td></tr>\n</table>");
}

TEST(Selection, isExtendedByKeysOnlyWithTheTool) {
  Selecting window(kLedger);
  window.press("Ctrl+T");
  EXPECT_EQ(window.press("Shift+PgDown"), 2) << "nothing is selected yet";
  window.press("PgUp");
  window.drag(window.at(0, 0), window.at(0, 3));
  const std::pair<const char*, const char*> rows[] = {
      {"Shift+Home", ""},
      {"Shift+Right", "N"},
      {"Shift+Right", "Na"},
      {"Shift+Right", "Nam"},
      {"Shift+Right", "Name"},
      {"Shift+Left", "Nam"},
      {"Shift+End", "Name        Amount   Date"},
      {"Shift+Left", "Name        Amount   Dat"},
      {"Shift+Down", "Name        Amount   Date\n------------------------"},
      {"Shift+Up", "Name        Amount   Dat"},
      {"Shift+PgDown", kWholeLedger},
      {"Shift+Up",
       "Name        Amount   Date\n-------------------------\nPears & Co    1.50 1/2/24\n<Apples>  "
       "  120.00 2/2/2"},
      {"Shift+Home",
       "Name        Amount   Date\n-------------------------\nPears & Co    1.50 1/2/24"}};
  for (const auto& [keys, expected] : rows) {
    EXPECT_EQ(window.press(keys), 1);
    EXPECT_EQ(window.copied(), expected) << keys;
  }
  // The key that the window sends to itself at the end of a page, with Shift, turns it.
  window.press("End");
  EXPECT_EQ(window.press("Down"), 2);
  window.press("PgUp");
  window.press("Ctrl+T");
  EXPECT_EQ(window.press("Shift+PgDown"), 2) << "with the hand it is a key of the window";
}

// Of the page it marks the places that are selected, at every zoom, and whenever it is on view.
TEST(Selection, staysWithItsPage) {
  Selecting window(kLedger);
  window.press("Ctrl+T");
  QImage plain = window.picture("page_control");
  const auto isMarked = [&](std::size_t line, std::size_t column) {
    const QPoint place = window.at(line, column);
    return window.picture("page_control").pixel(place) != plain.pixel(place);
  };
  window.drag(window.at(2, 2), window.at(2, 8));
  for (const char* step : {"", "Ctrl++", "Ctrl+0", "mnuWideView", "mnuNormalView"}) {
    SCOPED_TRACE(step);
    if (*step != 0) window.press(step);
    EXPECT_EQ(window.copied(), "ars &");
    auto& overlay = window.control<PageOverlay>("pageOverlay");
    overlay.hide();
    plain = window.picture("page_control");
    overlay.show();
    for (const auto& [column, marked] : {std::pair(1, false), {2, true}, {7, true}, {8, false}})
      EXPECT_EQ(isMarked(2, column), marked) << column;
    EXPECT_FALSE(isMarked(3, 4));
  }
  window.press("PgDown");
  EXPECT_FALSE(window.isOn("mnuCopy"));
  EXPECT_FALSE(window.control<PageOverlay>("pageOverlay").isVisible());
  EXPECT_EQ(window.copied(), "");
  window.press("PgUp");
  EXPECT_TRUE(window.isOn("mnuCopy"));
  EXPECT_EQ(window.copied(), "ars &");
  window.press("Ctrl+-", 4);
  window.press("mnuMultiPage");
  for (const char* command : {"mnuCopy", "mnuSelectPage", "mnuCopyPicture"})
    EXPECT_FALSE(window.isOn(command)) << command;
  window.press("mnuSinglePage");
  EXPECT_EQ(window.copied(), "ars &");
}

TEST(Selection, leavesKeysToEditsAndLists) {
  Selecting window(kLedger);
  window.press("lblPageCurrent");
  auto& edit = window.control<QLineEdit>("txtPageCurrentEdit");
  edit.setText("77");
  window.press("Ctrl+A");
  EXPECT_EQ(edit.selectedText(), "77");
  EXPECT_EQ(window.copied(), "77");
  window.press("Esc");
  EXPECT_FALSE(window.isOn("mnuCopy"));
}

// The sheet, as dense as it is seen, and at least so that 150 dots are an inch.
TEST(Selection, copiesThePageAsAPicture) {
  Selecting window(reportWithTextAt({3}));
  const auto picture = [&window] {
    QGuiApplication::clipboard()->clear();
    window.press("mnuCopyPicture");
    return QGuiApplication::clipboard()->image();
  };
  const double dpi = window.doc().Settings.Scr.dpi_x;
  const double width = window.doc().Settings.Scr.paper_width;
  const QImage usual = picture();
  EXPECT_NEAR(usual.width(), width * 150 / dpi, 2);
  EXPECT_GT(firstInk(usual, usual.rect().adjusted(5, 5, -5, -5)), 0);
  window.press("Ctrl++", 3);
  EXPECT_EQ(picture().width(), window.doc().Settings.Scr.paper_width);
  EXPECT_GT(picture().width(), usual.width());
}

}  // namespace
}  // namespace qor::test
