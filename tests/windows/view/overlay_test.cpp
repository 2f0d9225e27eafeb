// Layers above the page: a mark at places in twips covers the ink of the same places.
#include <QPainter>

#include <gtest/gtest.h>

#include "base/units.h"
#include "windows/view/page_overlay.h"
#include "windows/view/window.h"

namespace qor::test {
namespace {

// Paints a box of the page.
class BoxLayer : public OverlayLayer {
 public:
  explicit BoxLayer(const QRectF& twips) : twips_(twips) {}

  void paint(QPainter& painter, const PageMapping& mapping) override {
    const Spot from = mapping.toPixels({twips_.left(), twips_.top()});
    const Spot to = mapping.toPixels({twips_.right(), twips_.bottom()});
    painter.fillRect(QRectF(QPointF(from.x, from.y), QPointF(to.x, to.y)), Qt::green);
  }

 private:
  QRectF twips_;
};

// Where dots of a colour are seen in the scrolling area.
QRect boxOf(Window& window, QRgb color) {
  const QImage picture = window.picture("pScroll");
  QRect box;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) == color) box |= QRect(x, y, 1, 1);
    }
  }
  return box;
}

bool isNear(const QRect& a, const QRect& b) {
  const QPoint away[] = {a.topLeft() - b.topLeft(), a.bottomRight() - b.bottomRight()};
  return !a.isEmpty() && away[0].manhattanLength() <= 2 && away[1].manhattanLength() <= 2;
}

TEST(PageOverlay, staysOverThePage) {
  const QRectF twips(QPointF(twipsFromMillimetres(15), twipsFromMillimetres(8)),
                     QPointF(twipsFromMillimetres(55), twipsFromMillimetres(38)));
  Window window({"<shape sh_type=2 left=15 top=8 right=55 bottom=38 bt=1 bc=Red/>\r\n\fb\r\n",
                 Window::zoomed(6)});
  auto& overlay = window.control<PageOverlay>("pageOverlay");
  EXPECT_FALSE(overlay.isVisible()) << "while there is nothing to paint";
  BoxLayer layer(twips);
  const std::function<void()> rows[] = {[] {},
                                        [&] { window.parts().zoom.mnuZoomListClick(8); },
                                        [&] { window.parts().zoom.mnuZoomListClick(4); },
                                        [&] { window.area().verticalScrollBar()->setValue(37); },
                                        [&] {
                                          window.resize({840, 620});
                                        },
                                        [&] { window.click("cmdView_WideView"); },
                                        [&] { window.press(Qt::Key_0, Qt::ControlModifier); },
                                        [&] { window.click("cmdView_NormalView"); },
                                        [&] { window.parts().scale.ShowPageScale(); }};
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    SCOPED_TRACE(i);
    rows[i]();
    const QRect ink = boxOf(window, qRgb(255, 0, 0));
    overlay.add(layer);
    EXPECT_TRUE(isNear(boxOf(window, qRgb(0, 255, 0)), ink));
    const QPoint middle = overlay.mapFrom(&window.area(), ink.center());
    const Spot back = overlay.mapping()->toTwips({double(middle.x()), double(middle.y())});
    EXPECT_TRUE(twips.contains(back.x, back.y));
    EXPECT_NE(window.pageControl().childAt(middle), &overlay) << "the mouse goes through it";
    overlay.remove(layer);
    EXPECT_TRUE(boxOf(window, qRgb(0, 255, 0)).isEmpty());
  }
  overlay.add(layer);
  window.parts().zoom.mnuZoomListClick(9);
  window.click("cmdView_MultiPage");
  EXPECT_FALSE(overlay.isVisible()) << "over several pages";
  EXPECT_FALSE(overlay.mapping());
  window.click("cmdView_SinglePage");
  EXPECT_TRUE(overlay.isVisible());
  EXPECT_TRUE(isNear(overlay.geometry(), window.pageControl().rect()));
  overlay.remove(layer);
}

}  // namespace
}  // namespace qor::test
