// The control that shows pages: one on its sheet, one as wide as its content, several at once, or a
// text where there is none. It stands in the window's scrolling area and tells it how large it is.
#pragma once

#include <QFrame>
#include <vector>

#include "document/vset.h"
#include "window_model/page_layout.h"
#include "window_model/sheet_view.h"
#include "window_model/view_state.h"

class QLabel;

namespace qor {

class PageImage;
class PageOverlay;
class SmallPages;
class VDoc;
class VDocPage;
struct PageView;

class VPage : public QFrame {
  Q_OBJECT

 public:
  explicit VPage(QWidget* parent);

  // The area around the control, without bars for scrolling, and their thickness.
  void setSurroundings(const ScreenArea& area, int barThickness);

  // One page, on its sheet or as wide as its content needs. `page` must be loaded and stay so while
  // it is shown; its set takes the sheet's measurements, and a zoom that fits is replaced by its
  // percentage. Throws SystemError where no font is installed.
  void ShowNormal(VDocPage* page, std::int32_t& zoom, bool show_unprintable, PreviewKind kind);

  // Measures a page for the wide view and paints nothing.
  void ShowMeasured(VDocPage* page, std::int32_t& zoom);

  // Pages from `first` on, as many as there is room for. How many that are; 1 also where a single
  // page takes the place, -1 where there is nothing to show.
  int ShowMulti(VDoc* doc, VDocPage* page, std::int32_t& zoom, bool show_unprintable, int first);

  // Marks one of several pages; false if it isn't among them.
  bool MarkPage(int number);

  // The page at its size on a sheet that is shrunk to `percent`.
  void ShowScaled(VDocPage* page, int percent, bool show_unprintable);

  // A text in the middle of the area, in the place of pages.
  void ShowMessage(const QString& text);

  // That text, empty where pages are shown.
  QString message() const;

  // The page that is on view as it is read again, or null before it is released. What is painted
  // stays.
  void usePage(VDocPage* page);

  // What stands above a single page.
  PageOverlay& overlay() { return *overlay_; }

  // Several pages, and none of them where one is shown.
  const SmallPages& smallPages() const { return *small_; }

  // True where a single page is shown.
  bool showsOnePage() const;

  // False where a text stands in the place of pages.
  bool showsPages() const { return shows_pages_; }

 signals:
  // Where the control's corner is to stand in the scrolling area, and its size, pixels.
  void laidOut(const QPoint& origin, const QSize& size);
  // A small page was clicked, once or twice, from 1.
  void pageClicked(int number);
  void pageDoubleClicked(int number);
  void drawn();  // a page is on view, and not only its place
  void drawingFailed(const QString& reason);

 private:
  ScreenArea areaFor(const VSetScr& sheet) const;
  VSetScr fitSheet(const VSet& settings, std::int32_t& zoom) const;
  PageView viewOf(const VSetScr& screen, std::int32_t zoom, bool show_unprintable, bool wide) const;
  void showSingle(VDocPage* page, const PageView& view);
  void showThumbnails(VDoc* doc, const PageView& view, const std::vector<PagePlace>& places);
  void makeRoomForPages();

  VDocPage* page_ = nullptr;  // on show; the document's
  ScreenArea area_;
  int bar_thickness_ = 0;
  PageImage* single_;
  SmallPages* small_;
  QLabel* message_;
  PageOverlay* overlay_;
  bool shows_pages_ = false;
};

}  // namespace qor
