// The page as those hear it who don't see it: the text of the current page in one piece, with the
// places of its characters on the screen, a caret and what is selected. It looks at the page when
// it is asked, and costs nothing before. Offsets count characters from 0; the end of a line is one.
#pragma once

#include <QAccessible>
#include <QObject>
#include <QRect>
#include <optional>
#include <utility>
#include <vector>

#include "render/text_map.h"
#include "search/text_matcher.h"
#include "window_model/page_mapping.h"
#include "windows/accessible/page_beside.h"

namespace qor {

class PageSelection;
class PageShow;
class PageText;
struct ViewDesk;

class SpokenPage : public QObject {
  Q_OBJECT

 public:
  // It hangs on the scrolling area, where its interface finds it.
  SpokenPage(ViewDesk& desk, PageShow& pages, PageText& text, PageSelection& selection);

  int length();
  QString text(int from, int end);

  // A line; nothing where another page is the current one.
  std::u32string lineOf(int page, std::size_t line);

  // The character, the word as a double click takes it, or else the line that holds an offset;
  // nothing where there is none.
  std::optional<TextSpan> pieceAt(int offset, QAccessible::TextBoundaryType kind);

  // Where a character stands on the screen; the end of a line is one pixel wide. Nothing where the
  // page isn't on view.
  QRect placeOf(int offset);
  // The character at a place of the screen, -1 where there is none.
  int offsetAt(const QPoint& onScreen);
  // Scrolls until the first of some characters is seen, and if there is room the last one.
  void show(int from, int end);

  // Where reading goes on: at what was selected or found last, else at the top of the page.
  int caret();
  void moveCaret(const TextPlace& place);

  int offsetOf(const TextPlace& place);
  std::vector<TextSpan> selections();
  void select(int from, int end);

 private:
  // What shows the page, and where on it.
  struct Sight {
    const QWidget* control;
    PageMapping mapping;
  };

  const TextMap* map();
  const TextLine& laidOut(std::size_t line);
  void drop();
  std::optional<Sight> sight() const;
  QRectF boxOf(const TextPlace& place, const PageMapping& mapping);
  QRectF outlineOf(const TextPlace& place, const PageMapping& mapping);

  ViewDesk& desk_;
  PageShow& pages_;
  PageText& text_;
  PageSelection& selection_;
  PageBeside beside_;
  std::optional<std::pair<std::size_t, TextLine>> laid_out_;  // the line that was asked for last
  TextPlace caret_;
  int caret_page_ = 0;  // from 1
};

}  // namespace qor
