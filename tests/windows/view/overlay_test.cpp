// Layers above the page: a mark at places in twips covers the ink of the same places.
#include <QPainter>

#include "base/units.h"
#include "windows/view/page_overlay.h"
#include "windows/view/window.h"

namespace qor::test {
namespace {

// Paints a box of the page.
struct BoxLayer : OverlayLayer {
  void paint(QPainter& painter, const PageMapping& mapping) override {
    const Spot from = mapping.toPixels({twips.left(), twips.top()});
    const Spot to = mapping.toPixels({twips.right(), twips.bottom()});
    painter.fillRect(QRectF(QPointF(from.x, from.y), QPointF(to.x, to.y)), Qt::green);
  }

  const QRectF twips{QPointF(twipsFromMillimetres(15), twipsFromMillimetres(8)),
                     QPointF(twipsFromMillimetres(55), twipsFromMillimetres(38))};
};

bool isNear(const QRect& a, const QRect& b) {
  const QPoint away[] = {a.topLeft() - b.topLeft(), a.bottomRight() - b.bottomRight()};
  return !a.isEmpty() && away[0].manhattanLength() <= 2 && away[1].manhattanLength() <= 2;
}

TEST(PageOverlay, staysOverThePage) {
  Window window({"<shape sh_type=2 left=15 top=8 right=55 bottom=38 bt=1 bc=Red/>\r\n\fb\r\n",
                 Window::zoomed(6)});
  auto& overlay = window.control<PageOverlay>("pageOverlay");
  EXPECT_FALSE(overlay.isVisible()) << "while there is nothing to paint";
  BoxLayer layer;
  // F11 gives the page the room of the tools; the last step scales the sheet.
  for (const auto& step :
       wordsOf("Ctrl+0 - - + + + + Down F11 mnuWideView Ctrl+0 mnuNormalView F11 scaled")) {
    SCOPED_TRACE(step);
    step == "scaled" ? window.parts().scale.ShowPageScale() : static_cast<void>(window.press(step));
    const QRect ink = boxOf(window.picture("pScroll"), Qt::red);
    overlay.setShown(layer, true);
    EXPECT_TRUE(isNear(boxOf(window.picture("pScroll"), Qt::green), ink));
    const QPoint middle = overlay.mapFrom(&window.area(), ink.center());
    const Spot back = overlay.mapping()->toTwips({double(middle.x()), double(middle.y())});
    EXPECT_TRUE(layer.twips.contains(back.x, back.y));
    EXPECT_NE(window.pageControl().childAt(middle), &overlay) << "the mouse goes through it";
    overlay.setShown(layer, false);
    EXPECT_TRUE(boxOf(window.picture("pScroll"), Qt::green).isEmpty());
  }
  overlay.setShown(layer, true);
  window.parts().zoom.mnuZoomListClick(9);
  window.press("cmdView_MultiPage");
  EXPECT_FALSE(overlay.isVisible()) << "over several pages";
  EXPECT_FALSE(overlay.mapping());
  window.press("cmdView_SinglePage");
  EXPECT_TRUE(overlay.isVisible());
  EXPECT_TRUE(isNear(overlay.geometry(), window.pageControl().rect()));
  overlay.setShown(layer, false);
}

}  // namespace
}  // namespace qor::test
