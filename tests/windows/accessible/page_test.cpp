// The page as screen readers ask for it.
#include <QAccessible>
#include <QClipboard>

#include "windows/find/find_panel.h"
#include "windows/selection/page_selection.h"
#include "windows/view/page_image.h"
#include "windows/view/window.h"

namespace qor::test {
namespace {

using Kind = QAccessible::TextBoundaryType;

constexpr const char* kPears =
    "Pears & Co    1.50\r\n\r\nend<text left=20 top=10 tc=r/><text left=10 top=10 tc=l/>\f"
    "H H HH\r\nsecond <text left=60 top=60 o=1 tc=\"H HH\"/>\fthird";
constexpr const char* kPearsRead = "Pears & Co    1.50\n\nend\nl r\n";
constexpr const char* kSecondRead = "H H HH\nsecond \nH HH\n";

class HeardWindow : public Window {
 public:
  explicit HeardWindow(const Start& start) : Window(start) {}

  QAccessibleInterface& page() { return *QAccessible::queryAccessibleInterface(&area()); }
  QAccessibleTextInterface& text() { return *page().textInterface(); }
  std::string all() { return text().text(0, text().characterCount()).toStdString(); }
  std::string name() { return page().text(QAccessible::Name).toStdString(); }

  // Dots of a colour, dark ones for none, at a place of the screen and a pixel within it.
  int dots(const QRect& place, std::optional<QColor> colour = {}) {
    const QImage seen = pageControl().grab().toImage();
    const QRect part =
        place.translated(-pageControl().mapToGlobal(QPoint())).adjusted(1, 1, -1, -1);
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
      for (int x = part.left(); x <= part.right(); ++x) {
        const QColor dot = seen.pixelColor(x, y);
        if (colour ? dot == *colour : dot.lightness() < 140) ++count;
      }
    }
    return count;
  }

  // Such as "3-7 12-14".
  std::string selected() {
    std::string told;
    for (int i = 0; i < text().selectionCount(); ++i) {
      int start = 0, end = 0;
      text().selection(i, &start, &end);
      told += (i == 0 ? "" : " ") + std::to_string(start) + "-" + std::to_string(end);
    }
    return told;
  }
};

TEST(SpokenPage, isReadByCharacterWordAndLine) {
  HeardWindow window({kPears});
  EXPECT_EQ(window.page().role(), QAccessible::Document);
  const QAccessible::State state = window.page().state();
  EXPECT_TRUE(state.readOnly && state.multiLine && state.selectableText && state.focused);
  EXPECT_EQ(window.name(), "Page 1 of 3, report.txt");
  EXPECT_EQ(window.all(), kPearsRead);
  EXPECT_EQ(window.text().text(4, 7), "s &");
  const std::tuple<int, Kind, const char*, const char*, const char*> rows[] = {
      {2, Kind::WordBoundary, "", "Pears", " "},
      {6, Kind::WordBoundary, " ", "&", " "},
      {11, Kind::WordBoundary, "Co", "    ", "1.50"},
      {18, Kind::WordBoundary, "1.50", "\n", "\n"},
      {2, Kind::CharBoundary, "e", "a", "r"},
      {2, Kind::LineBoundary, "", "Pears & Co    1.50\n", "\n"},
      {19, Kind::ParagraphBoundary, "Pears & Co    1.50\n", "\n", "end\n"},
      {26, Kind::LineBoundary, "end\n", "l r\n", ""},
      {3, Kind::NoBoundary, "", kPearsRead, ""},
      {28, Kind::LineBoundary, "l r\n", "", ""}};
  for (const auto& [offset, kind, before, at, behind] : rows) {
    SCOPED_TRACE(std::to_string(offset) + " " + at);
    int start = 0, end = 0;
    EXPECT_EQ(window.text().textAtOffset(offset, kind, &start, &end), at);
    EXPECT_EQ(window.text().text(start, end), at);
    EXPECT_EQ(window.text().textBeforeOffset(offset, kind, &start, &end), before);
    EXPECT_EQ(window.text().textAfterOffset(offset, kind, &start, &end), behind);
  }
  window.press("PgDown");
  EXPECT_EQ(window.name(), "Page 2 of 3, report.txt");
  EXPECT_EQ(window.all(), kSecondRead);
  window.form().chooseLanguage(languageOf("tr"));
  EXPECT_EQ(window.name(), "Sayfa 2 / 3, report.txt");
}

// Letters have dots where they are said to be, blanks have none: at all zooms, turned ones, too.
TEST(SpokenPage, knowsWhereItsCharactersAreSeen) {
  for (const int zoom : {6, 3}) {
    SCOPED_TRACE(zoom);
    HeardWindow window({kPears, Window::zoomed(zoom)});
    window.press("PgDown");
    QRect before;
    for (int i = 0; i < window.text().characterCount(); ++i) {
      SCOPED_TRACE(i);
      const QString letter = window.text().text(i, i + 1);
      window.text().scrollToSubstring(i, i + 1);
      const QRect place = window.text().characterRect(i);
      const QRect seen(window.area().viewport()->mapToGlobal(QPoint()),
                       window.area().viewport()->size());
      EXPECT_TRUE(seen.contains(place));
      EXPECT_EQ(window.dots(place) > 0, !letter.trimmed().isEmpty()) << letter.toStdString();
      EXPECT_EQ(window.text().offsetAtPoint(place.center()), i);
      if (letter == "\n") {
        EXPECT_LE(std::abs(place.left() - before.right()), 2);
      }
      before = place;
    }
    EXPECT_EQ(window.text().offsetAtPoint(before.center() + QPoint(0, 99)), -1);
    EXPECT_TRUE(window.text().characterRect(-1).isNull());
    window.text().scrollToSubstring(0, 1);
    EXPECT_EQ(window.text().characterRect(0).width(), zoom == 6 ? 9 : 17);
  }
}

TEST(SpokenPage, hasTheSelectionOfTheTextTool) {
  HeardWindow window({kPears, Window::zoomed(6)});
  window.press("Ctrl+T");
  window.text().setSelection(0, 2, 21);
  EXPECT_EQ(window.selected(), "2-21");
  window.press("Shift+Right");
  EXPECT_EQ(window.text().cursorPosition(), 22);
  window.press("Ctrl+C");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "  ars & Co    1.50\n\nen");
  window.press("PgDown");
  EXPECT_EQ(window.selected(), "");
  EXPECT_EQ(window.text().cursorPosition(), 0);
  window.press("PgUp");
  EXPECT_EQ(window.selected(), "2-22");
  EXPECT_EQ(window.text().cursorPosition(), 22);
  window.text().removeSelection(0);
  EXPECT_EQ(window.selected(), "");
  EXPECT_EQ(window.text().cursorPosition(), 22);
  // Columns from the second character to the end of the third, down to the line "end".
  window.parts().selection.change([](TextSelection& selection, const TextMap& map) {
    selection.start(map, SelectionKind::rectangle, {130, 100});
    selection.extend(map, {370, 500});
  });
  EXPECT_EQ(window.selected(), "1-3 21-23");
}

TEST(SpokenPage, isTheMarkedOneOfSeveral) {
  HeardWindow window({.report = kPears, .stored = {{"MultipageView", 1}, {"ZoomID", 9}}});
  EXPECT_EQ(window.all(), kPearsRead);
  window.click(*window.smallPages().at(2));
  Window::settle();
  EXPECT_EQ(window.name(), "Page 2 of 3, report.txt");
  EXPECT_EQ(window.all(), kSecondRead);
  // Its first line is seen on the second small page: "H H HH".
  const PageImage& page = *window.smallPages().at(2);
  const QRect first = window.text().characterRect(0);
  const QRect last = window.text().characterRect(5);
  EXPECT_TRUE(QRect(page.mapToGlobal(QPoint()), page.size()).contains(first | last));
  EXPECT_GT(last.left(), first.right());
  EXPECT_GT(window.dots(first | last), 4);
  EXPECT_EQ(window.text().offsetAtPoint(last.center()), 5);
}

TEST(SpokenPage, hasItsCaretAtTheHit) {
  HeardWindow window({kPears, Window::zoomed(6)});
  window.press("Ctrl+F");
  QTest::keyClicks(&window.control("txtFind"), "cond");
  while (window.parts().find.finder().isSearching()) Window::settle();
  EXPECT_EQ(window.page().text(QAccessible::Name), "Page 2 of 3, report.txt");
  EXPECT_EQ(window.text().cursorPosition(), 9);
  EXPECT_EQ(window.all().substr(9, 4), "cond");
  const QColor marked(255, 170, 60);
  for (const int offset : {8, 9, 12, 13})
    EXPECT_EQ(window.dots(window.text().characterRect(offset), marked) > 10,
              offset == 9 || offset == 12)
        << offset;
}

// What a key can come to says what it is, in the language of the interface.
TEST(SpokenWindow, namesItsControlsInEachLanguage) {
  HeardWindow window({kPears});
  window.press("Ctrl+F");
  std::map<QWidget*, QStringList> names;
  for (const char* language : {"en", "ru", "tr"}) {
    window.form().chooseLanguage(languageOf(language));
    for (QWidget* control : window.form().findChildren<QWidget*>()) {
      if (control->focusPolicy() == Qt::NoFocus) continue;
      names[control] += QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
    }
  }
  EXPECT_GT(names.size(), 25U);
  for (const auto& [control, told] : names) {
    EXPECT_FALSE(told.contains(QString())) << control->metaObject()->className();
    EXPECT_TRUE(told.size() == 3 && told[0] != told[1] && told[1] != told[2])
        << control->metaObject()->className() << control->objectName().toStdString() << ": "
        << told.join(", ").toStdString();
  }
}

}  // namespace
}  // namespace qor::test
