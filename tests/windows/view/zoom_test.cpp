// Zooms of the window. Pages are A4 on the printer that makes files: 793 by 1122 pixels at 100
// percent, with a gap of 10 around the sheet.
#include <QComboBox>

#include "windows/view/window.h"

namespace qor::test {
namespace {

TEST(PreviewZoom, hasEveryZoomOfItsList) {
  Window window({reportOfPages(1)});
  auto& list = window.control<QComboBox>("cmbZoom");
  EXPECT_EQ(list.currentIndex(), -1) << "nothing is stored yet";
  EXPECT_EQ(list.placeholderText(), "100%");
  EXPECT_EQ(window.pageControl().size(), QSize(813, 1142)) << "which counts as 100 percent";
  int entry = 0;
  for (const int height : {5712, 4569, 3427, 2284, 1713, 1427, 1142, 855, 571, 284, 136, 56}) {
    list.setCurrentIndex(entry++);
    window.parts().zoom.cmbZoomChange();
    EXPECT_EQ(window.pageControl().height(), height);
  }
  window.control<QLineEdit>("txtZoom").setText("200");
  window.parts().scale.ShowPageScale();
  EXPECT_EQ(window.pageControl().size(), QSize(436, 601)) << "a sheet scaled under its page";
  window.parts().zoom.mnuZoomListClick(6);
  EXPECT_EQ(window.pageControl().size(), QSize(813, 1142)) << "the next zoom ends it";
}

TEST(PreviewZoom, stepsInTheListOrFromWhatIsSeen) {
  Window window({reportOfPages(1)});
  const auto& list = window.control<QComboBox>("cmbZoom");
  // A key, and the zoom's entries before and behind. The area is about 1000 by 710 pixels: AutoW
  // gives some 122 percent, AutoH 63.
  const std::tuple<const char*, int, int> rows[] = {
      {"Num+-", 6, 7},   {"+", 6, 5},       {"+", 0, 0},        {"+", 13, 12},
      {"-", 11, 12},     {"Ctrl++", 6, 5},  {"Ctrl++", 0, 0},   {"Ctrl+=", 6, 5},
      {"=", 6, 6},       {"Ctrl+-", 6, 7},  {"Ctrl+-", 11, 11}, {"Ctrl++", 12, 5},
      {"Ctrl++", 13, 7}, {"Ctrl++", -1, 5}, {"Ctrl+-", 12, 6},  {"Ctrl+-", 13, 8}};
  for (const auto& [key, from, to] : rows) {
    window.parts().zoom.mnuZoomListClick(from);
    window.press(key);
    EXPECT_EQ(list.currentIndex(), to) << key << " from " << from;
  }
  // The entries of the menu from 100 percent down pick the next larger one.
  for (const int place : {4, 12, 5}) {
    window.control<QMenu>("mnuZoom").actions()[place]->trigger();
    EXPECT_EQ(list.currentIndex(), place);
  }
  for (const auto& [delta, to] : {std::pair(-60, 5), {-60, 6}, {-60, 6}, {120, 5}}) {
    window.wheel(delta, Qt::ControlModifier);
    EXPECT_EQ(list.currentIndex(), to) << delta;
  }
}

TEST(PreviewZoom, keepsThePlaceThatIsLookedAt) {
  const QPoint pointer(620, 130);
  // The wheel's step, or else what is pressed.
  const std::pair<int, const char*> rows[] = {
      {120, ""}, {-120, ""}, {0, "cmdView_ZoomIn"}, {0, "cmdView_ZoomOut"}};
  for (const int kind : {kNormalView, kWideView}) {
    for (const auto& [wheel, pressed] : rows) {
      // 300 percent: larger than the area in both directions, before and after.
      Window window({reportOfPages(1), {{"ZoomID", 2}, {"PreviewType", kind}}});
      window.area().horizontalScrollBar()->setValue(700);
      window.area().verticalScrollBar()->setValue(900);
      const QPoint at = wheel != 0 ? pointer : window.area().viewport()->rect().center();
      // The place of the page at 100 percent.
      const auto place = [&](double zoom) {
        return QPointF(window.pageControl().mapFrom(window.area().viewport(), at)) * 100 / zoom;
      };
      const QPointF before = place(300);
      wheel != 0 ? window.wheel(wheel, Qt::ControlModifier, pointer) : window.press(pressed);
      const double zoom = window.pageControl().width() / (kind == kWideView ? 793.7 : 813.7) * 100;
      ASSERT_GT(std::abs(zoom - 300), 90);
      EXPECT_LE((place(zoom) - before).manhattanLength(), 3) << kind << " " << zoom;
    }
  }
}

TEST(PreviewZoom, fitsAndStaysFitted) {
  // The fit to the width, to the page, and the actual size; whether there is a bar at the right,
  // where none is below; and the zoom that is stored.
  const std::tuple<PreviewKind, std::string, bool, int> rows[] = {
      {kNormalView, "Ctrl+1", true, 12},
      {kNormalView, "Ctrl+2", false, 13},
      {kWideView, "Ctrl+1", false, 6},
      {kWideView, "Ctrl+2", false, 6},
      {kNormalView, "Ctrl+0", true, 6}};
  for (const auto& [kind, key, bar, stored] : rows) {
    Window window({std::string(300, 'w') + "\r\n", {{"ZoomID", 3}, {"PreviewType", kind}}});
    window.press(key);
    for (const QSize size : {QSize(1000, 800), QSize(1200, 700), QSize(830, 900)}) {
      SCOPED_TRACE(testing::Message() << kind << " " << key << " " << size.width());
      window.resize(size);
      EXPECT_EQ(window.area().verticalScrollBar()->isVisible(), bar);
      EXPECT_FALSE(window.area().horizontalScrollBar()->isVisible());
      const QSize view = window.pageControl().size();
      const QSize left = window.area().viewport()->size() - view;
      if (key == "Ctrl+0") {
        EXPECT_EQ(view, QSize(813, 1142));
        continue;
      }
      // One percent more has no room: it takes at most 24 pixels of 300 letters.
      EXPECT_LT(key == "Ctrl+1" ? left.width() : std::min(left.width(), left.height()), 26);
      if (kind == kWideView) continue;
      const int gaps = view.width() - window.doc().Settings.Scr.paper_width;
      EXPECT_NEAR(window.pageControl().x() * 2, left.width() + gaps, 1)
          << "the sheet is in the middle";
    }
    EXPECT_EQ(window.close()["ZoomID"], stored) << key;
  }
}

// The fit to the width leaves 2 percent, which are more than the gaps below 100 percent only.
TEST(PreviewZoom, isToldInItsBoxAndHasNoBarBelowAPageThatFits) {
  Window window({reportOfPages(5), Window::zoomed(12)});
  const auto& box = window.control<QComboBox>("cmbZoom");
  const QScrollBar& below = *window.area().horizontalScrollBar();
  const QScrollBar& right = *window.area().verticalScrollBar();
  // The width of the area beside the bar at the right, that of the view, and what is then seen.
  const std::tuple<int, int, bool, const char*> rows[] = {{800, 795, false, "AutoW (98%)"},
                                                          {795, 795, false, "AutoW (98%)"},
                                                          {1000, 1008, true, "AutoW (124%)"}};
  for (const auto& [width, view, bar, shown] : rows) {
    window.resize({width + right.width(), 800});
    EXPECT_EQ(window.pageControl().width(), view);
    EXPECT_EQ(below.isVisible(), bar) << width;
    EXPECT_EQ(below.maximum(), std::max(0, view - width));
    EXPECT_EQ(box.currentText(), shown);
  }
  window.press("Ctrl+-");
  EXPECT_EQ(box.currentText(), "100%");
  EXPECT_EQ(box.itemText(12), "AutoW");
  EXPECT_EQ(right.maximum(), 1142 - window.area().viewport()->height()) << "a gap at each side";
  window.parts().zoom.mnuZoomListClick(13);
  window.press("cmdView_MultiPage");
  EXPECT_TRUE(box.currentText().startsWith("AutoH (")) << box.currentText().toStdString();
  window.press("cmdView_WideView");
  EXPECT_EQ(box.currentText(), "AutoH (100%)");
}

}  // namespace
}  // namespace qor::test
