// The pages of the multi page view: drawn one by one, each with its number, and one of them marked.
#pragma once

#include <QFrame>
#include <vector>

#include "window_model/page_layout.h"
#include "window_model/page_view.h"

class QLabel;
class QTimer;

namespace qor {

class PageImage;
class VDoc;

class SmallPages : public QObject {
  Q_OBJECT

 public:
  // They stand on the board, which has its size before they are shown.
  explicit SmallPages(QWidget* board);

  // Shows pages at their places, in the view that all of them have. The document must outlive them.
  void show(VDoc* doc, const PageView& view, const std::vector<PagePlace>& places);
  void clear();
  // Draws nothing while the document is changed, and goes on behind it.
  void pause();
  void goOn();
  bool isEmpty() const { return pages_.empty(); }

  struct SmallPage {
    int number;
    PageImage* image;
    QLabel* label;
  };
  const std::vector<SmallPage>& pages() const { return pages_; }
  // How each of them is seen.
  const PageView& view() const { return view_; }

  // Marks the page of this number; false, and nothing is marked, if it is none of them.
  bool mark(int number);

 signals:
  // A page was clicked, once or twice; its number, from 1.
  void clicked(int number);
  void doubleClicked(int number);
  void drawn();
  void drawingFailed(const QString& reason);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  PageImage* makeImage(VDoc* doc, const PagePlace& place);
  QLabel* makeLabel(int number);
  void putFrame(const SmallPage& page);
  void drawWaiting();

  QWidget* board_;
  QFrame* frame_;    // around the page that is marked
  QTimer* drawing_;  // of pages that wait
  std::vector<SmallPage> pages_;
  std::size_t drawn_ = 0;
  PageView view_;
};

}  // namespace qor
