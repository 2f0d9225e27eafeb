// What stands above a page on view: alignment lines, highlights, a selection. Layers paint it, each
// at its places in twips of the page. It lies over the page wherever that goes, lets the mouse
// through, and isn't there while it has no layers or no single page is on view.
#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "window_model/page_mapping.h"

namespace qor {

class OverlayLayer {
 public:
  virtual ~OverlayLayer() = default;

  // Paints in pixels of the view, whose corner is (0, 0), where the painter is clipped to.
  virtual void paint(QPainter& painter, const PageMapping& mapping) = 0;
};

class PageOverlay : public QWidget {
  Q_OBJECT

 public:
  // It stands over the board, above the page there.
  explicit PageOverlay(QWidget* board);

  // Paints this layer as it is now, above those that were shown before it; or no more.
  void setShown(OverlayLayer& layer, bool shown);

  // A page is on view, as large as the board; or none.
  void cover(const PageView& view);
  void leave();

  // How that page is seen.
  const std::optional<PageView>& view() const { return view_; }

  // Between twips of that page and pixels of the overlay; nothing while there is none.
  std::optional<PageMapping> mapping() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void appear();

  std::vector<OverlayLayer*> layers_;
  std::optional<PageView> view_;
};

}  // namespace qor
