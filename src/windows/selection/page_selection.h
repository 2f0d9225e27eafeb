// What is selected of the page on show: its marks over the page, and its copies. The selection
// belongs to one page; while another one is on view it waits, and nothing is selected there.
#pragma once

#include <QObject>
#include <functional>

#include "window_model/text_selection.h"
#include "windows/view/page_overlay.h"

namespace qor {

class PageText;
struct ViewDesk;

class PageSelection : public QObject, private OverlayLayer {
  Q_OBJECT

 public:
  PageSelection(ViewDesk& desk, PageText& text);
  ~PageSelection() override;

  // Whether a single page is on view whose text is known.
  bool isPossible();

  // False where something is selected of the page on view.
  bool isEmpty() const;

  // The selection of the page on view, which may be empty; null where another page has it.
  const TextSelection* onView() const { return isOnView() ? &selection_ : nullptr; }

  // Changes the selection of the page on view, which starts empty where another page has it.
  using Change = std::function<void(TextSelection&, const TextMap&)>;
  void change(const Change& change);

  // The same with the spot of the page that stands at one of the screen, twips.
  using SpotChange = std::function<void(TextSelection&, const TextMap&, const Spot&)>;
  void changeAt(const QPoint& onScreen, const SpotChange& change);

  // Scrolls to the end that was moved last.
  void showEnd();

  // Copies it, where it isn't empty; selects all of the page.
  void mnuCopyClick();
  void mnuSelectPageClick();

  // Offers it to the middle button of the mouse, where the system has that.
  void offer();

  // Another page is on view, or the same anew.
  void followPage();

 signals:
  void changed();

 private:
  void paint(QPainter& painter, const PageMapping& mapping) override;
  bool isOnView() const;
  const TextMap* textWithSelection();

  ViewDesk& desk_;
  PageText& text_;
  TextSelection selection_;
  int page_ = 0;  // that it belongs to, from 1
};

}  // namespace qor
