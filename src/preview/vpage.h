// The control that shows pages: one on its sheet, one as wide as its content, several at once, or a
// text where there is none. It stands in the window's scrolling area and tells it how large it is.
#pragma once

#include <QFrame>
#include <memory>
#include <vector>

#include "document/vset.h"
#include "preview/model/page_layout.h"
#include "preview/model/sheet_view.h"

class QLabel;
class QTimer;

namespace qor {

class PageImage;
class VDoc;
class VDocPage;
struct PageView;

class VPage : public QFrame {
  Q_OBJECT

 public:
  explicit VPage(QWidget* parent);
  ~VPage() override;

  // The area around the control, without bars for scrolling, and their thickness.
  void setSurroundings(const ScreenArea& area, int barThickness);

  // One page. `page` must be loaded and stay so while it is shown; its set takes the sheet's
  // measurements, and a zoom that fits is replaced by its percentage.
  void ShowNormal(VDocPage* page, std::int32_t& zoom, bool show_unprintable, int preview_type);

  // The same as wide as the content needs, and nothing is painted.
  void ShowMeasured(VDocPage* page, std::int32_t& zoom, bool show_unprintable);

  // Pages from `first` on, as many as there is room for. How many that are; 1 also where a single
  // page takes the place, -1 where there is nothing to show.
  int ShowMulti(VDoc* doc, VDocPage* page, std::int32_t& zoom, bool show_unprintable, int first);

  // The page at its size on a sheet that is shrunk to `percent`.
  void ShowScaled(VDocPage* page, int percent, bool show_unprintable);

  // A text in the middle of the area, in the place of pages.
  void ShowMessage(const QString& text);

  // Forgets the page: it is about to be released. What is on view stays.
  void releasePage();

 signals:
  void placed(const QPoint& origin, const QSize& size);
  void pageClicked(int number);
  void drawingFailed(const QString& reason);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  VSetScr laidOut(VDocPage& page, std::int32_t& zoom, int preview_type) const;
  PageView viewOf(const VSetScr& screen, std::int32_t zoom, bool show_unprintable, bool wide) const;
  void showSingle(VDocPage* page, const PageView& view);
  void showThumbnails(VDoc* doc, const PageView& view, const std::vector<PagePlace>& places);
  PageImage* addThumbnail(VDoc* doc, const PageView& view, const PagePlace& place);
  void removeThumbnails();
  void drawWaiting();

  std::int32_t zoom_ = 100;
  VDocPage* page_ = nullptr;  // on show; the document's
  bool show_unprintable_ = true;
  ScreenArea area_;
  int barThickness_ = 0;
  PageImage* single_;
  QLabel* message_;
  QTimer* drawing_;  // of thumbnails that wait
  std::vector<std::unique_ptr<PageImage>> thumbnails_;
  std::size_t drawnThumbnails_ = 0;
};

}  // namespace qor
