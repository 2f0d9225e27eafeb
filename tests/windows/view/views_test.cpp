// The views of the window. Pages are A4 on the printer that makes files: 793 by 1122 pixels at 100
// percent, with a gap of 10 around the sheet; at 25 percent they take 202 by 284 with their gaps.
#include <QComboBox>
#include <QListView>
#include <QMouseEvent>

#include "windows/view/window.h"

namespace qor::test {
namespace {

const Settings kSeveral = {{"ZoomID", 9}, {"MultipageView", 1}};

QRect sheetRect(const PageImage* image) {
  return {image->pos(), QSize(198, 280)};
}

// Each page has its text in a line of its own, 15 pixels high at 100 percent.
TEST(PreviewViews, showsThePageThatItNames) {
  const auto chosen = [](Window& window) {
    auto& list = window.control<QListView>("lstPages");
    window.click(*list.viewport(), list.visualRect(list.model()->index(2, 0)).center());
  };
  const auto small = [](Window& window) {
    QTest::qWait(50);
    const QImage picture = window.picture("pScroll");
    // Inside of the outline and of the mark.
    const auto ink = [&](int page) {
      return firstInk(picture, sheetRect(window.smallPages().at(page)).adjusted(6, 6, -6, -6));
    };
    EXPECT_GT(ink(1), 0);
    EXPECT_NEAR(ink(2) - ink(1), 10 * 15 / 4, 2);
    EXPECT_NEAR(ink(3) - ink(1), 27 * 15 / 4, 2);
    PageImage* third = window.smallPages().at(3);
    QTest::mouseClick(third, Qt::LeftButton);
    QTest::mouseDClick(third, Qt::LeftButton);
    Window::settle();
    EXPECT_EQ(window.smallPages().size(), 1U);
    window.parts().zoom.mnuZoomListClick(6);
  };
  const std::tuple<const char*, Settings, std::function<void(Window&)>> rows[] = {
      {"list", {{"ZoomID", 6}, {"ListView", 1}}, chosen},
      {"small page", kSeveral, small},
      {"keys", {{"ZoomID", 6}}, [](Window& window) { window.press("PgDown", 2); }}};
  for (const auto& [what, stored, go] : rows) {
    Window window({reportWithTextAt({3, 13, 30, 40}), stored});
    go(window);
    EXPECT_EQ(window.page(), 3) << what;
    EXPECT_NEAR(window.firstInk(), 30 * 15, 15) << what;
  }
  // A part of a page that is larger than what is drawn of it at once.
  Window large({reportWithTextAt({40}), Window::zoomed(0)});
  large.picture("pScroll");
  large.area().verticalScrollBar()->setValue(2900);
  // Its line 41 ends there, behind the gap: a line takes 227 twips, the picture 480 dots per inch.
  const int end = 50 + 41 * 227 * 480 / 1440 - 2900;
  EXPECT_NEAR(firstInk(large.picture("pScroll"), {100, 0, 800, 600}), end, 25);
}

TEST(PreviewViews, wideViewStaysWhereAWindowCanScroll) {
  const std::string lines = QByteArray("w\r\n").repeated(250000).toStdString();
  Window window({lines, {{"ZoomID", 0}, {"PreviewType", kWideView}}});
  EXPECT_NEAR(window.pageControl().height(), 16e6, 1e5)
      << "at 500 percent it would end beyond 2^24";
  EXPECT_EQ(window.pageControl().height(), window.doc().Settings.Scr.view_height);
  EXPECT_NE(window.status().find("and stands at 42"), std::string::npos) << window.status();
  EXPECT_EQ(window.control<QComboBox>("cmbZoom").currentText().left(8), "500% (42");
}

TEST(PreviewViews, listsPages) {
  Window window({reportOfPages(200), {{"ZoomID", 6}, {"ListView", 1}}});
  auto& list = window.control<QListView>("lstPages");
  EXPECT_EQ(list.model()->rowCount(), 200);
  window.press("PgDown");
  EXPECT_EQ(list.currentIndex().row(), 1);
  const QRect line = list.visualRect(list.model()->index(4, 0));
  const QPoint above(0, line.height());
  EXPECT_EQ(window.click(*list.viewport(), line.center()), 5);
  EXPECT_EQ(window.click(*list.viewport(), line.center() - above, Qt::RightButton), 4);
  // Keys of the list that has the focus. A page that is gone to shows its top.
  const std::tuple<const char*, int, int> rows[] = {{"Down", 5, 5},     {"Up", 4, 4},
                                                    {"PgDown", 20, 80}, {"End", 200, 200},
                                                    {"PgUp", 120, 180}, {"Home", 1, 1}};
  for (const auto& [key, least, most] : rows) {
    window.area().verticalScrollBar()->setValue(100);
    EXPECT_GE(window.press(key), least) << key;
    EXPECT_LE(window.page(), most) << key;
    EXPECT_EQ(window.scrolled(), 0) << key;
  }
  EXPECT_EQ(window.press("Ctrl+End"), 200) << "with Ctrl the window's";
  window.area().verticalScrollBar()->setValue(0);
  EXPECT_EQ(window.press("Ctrl+Up"), 199) << "also before the first line";
  QWidget& divider = window.control("pSizeLine");
  QTest::mousePress(&divider, Qt::LeftButton, {}, {2, 50});
  QMouseEvent move(QEvent::MouseMove, {52, 50}, divider.mapToGlobal(QPointF(52, 50)), Qt::NoButton,
                   Qt::LeftButton, Qt::NoModifier);
  const int before = list.width();
  QCoreApplication::sendEvent(&divider, &move);
  EXPECT_EQ(list.width(), before + 50);
  Window few({reportOfPages(3), {{"ListView", 1}}});
  auto& lines = few.control<QListView>("lstPages");
  few.click(*lines.viewport(), {10, lines.viewport()->height() - 2});
  EXPECT_EQ(lines.selectionModel()->selectedIndexes().size(), 1) << "below the last line";
}

TEST(PreviewSmallPages, fillTheAreaAndAreMarkedByAClick) {
  Window window({reportOfPages(40), Window::zoomed(9)});
  window.press("cmdView_MultiPage");
  const QSize area = window.area().maximumViewportSize();
  const int count = (area.width() / 202) * (area.height() / 284);
  ASSERT_GE(count, 8);
  EXPECT_EQ(static_cast<int>(window.smallPages().size()), count);
  const auto clickOn = [&window](int page) { return window.click(*window.smallPages().at(page)); };
  const auto& mark = window.control<QFrame>("pageMark");
  EXPECT_EQ(window.press("Ctrl+PgDown"), count + 1) << "as without Ctrl";
  const auto before = window.smallPages();
  EXPECT_TRUE(mark.geometry().contains(sheetRect(before.at(count + 1))));
  EXPECT_EQ(clickOn(count + 4), count + 4);
  EXPECT_EQ(window.smallPages(), before) << "nothing moves";
  EXPECT_TRUE(mark.isVisible());
  EXPECT_TRUE(mark.geometry().contains(sheetRect(before.at(count + 4))));
  EXPECT_EQ(window.press("PgDown"), 2 * count + 1) << "the page behind those on view";
  EXPECT_EQ(window.press("Ctrl+End"), 40 - count + 1);
  clickOn(38);
  EXPECT_FALSE(window.control("cmdView_Next").isEnabled());
  EXPECT_EQ(window.press("PgDown"), 38) << "nothing is behind the last ones";
  EXPECT_EQ(window.smallPages().begin()->first, 40 - count + 1);
  window.resize({800, 480});
  EXPECT_EQ(window.page(), 38);
  EXPECT_EQ(window.smallPages().count(38), 1U) << "a smaller window still shows it";
  // A press on the screen, as the system reports it, ends the typing of a number first.
  window.press("lblPageCurrent");
  const PageImage& page = *window.smallPages().at(38);
  const QPoint place = page.mapTo(&window.form(), page.rect().center());
  QTest::mouseClick(window.form().windowHandle(), Qt::LeftButton, {}, place);
  Window::settle();
  EXPECT_FALSE(window.control("txtPageCurrentEdit").isVisible());
  EXPECT_EQ(window.page(), 38);
  window.press("cmdView_SinglePage");
  EXPECT_EQ(window.press("PgDown"), 39);
}

int contrast(QRgb a, QRgb b) {
  return std::abs(qGray(a) - qGray(b));
}

TEST(PreviewSmallPages, bearNumbersAndAMarkThatAreSeen) {
  for (const bool dark : {false, true}) {
    SCOPED_TRACE(dark ? "dark" : "light");
    Window window({reportOfPages(20), kSeveral});
    QPalette colours(QColor(40, 40, 40));
    colours.setColor(QPalette::Highlight, QColor(42, 130, 218));
    if (dark) window.form().setPalette(colours);
    Window::settle();
    const auto pages = window.smallPages();
    const QImage picture = window.picture("pScroll");
    std::size_t numbers = 0;
    for (const QLabel* label : window.pageControl().findChildren<QLabel*>("pageNumber")) {
      if (!label->isVisible()) continue;
      ++numbers;
      EXPECT_EQ(pages.count(label->text().toInt()), 1U);
      EXPECT_TRUE(window.pageControl().rect().contains(label->geometry()));
      for (const auto& [number, image] : pages)
        EXPECT_FALSE(label->geometry().intersects(sheetRect(image))) << number;
      const QImage text = picture.copy(label->geometry());
      int most = 0;
      for (int x = 0; x < text.width(); ++x)
        most = std::max(most, contrast(text.pixel(x, text.height() / 2), text.pixel(0, 0)));
      EXPECT_GT(most, 60) << label->text().toStdString();
    }
    EXPECT_EQ(numbers, pages.size());
    EXPECT_EQ(pages.at(2)->toolTip(), "Page 2");
    EXPECT_EQ(pages.at(2)->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(window.pageControl().childAt(pages.at(1)->pos() + QPoint(1, 1)), pages.at(1))
        << "the mark lets clicks through";
    const QPoint edge(sheetRect(pages.at(2)).right(), sheetRect(pages.at(2)).center().y());
    EXPECT_LT(qGray(picture.pixel(edge + QPoint(1, 0))), qGray(picture.pixel(edge + QPoint(8, 0))))
        << "the shadow is darker than its ground";
    const QPoint frame(sheetRect(pages.at(1)).left() - 1, edge.y());
    for (const int beside : {-4, 6})
      EXPECT_GT(contrast(picture.pixel(frame), picture.pixel(frame + QPoint(beside, 0))), 60);
  }
}

}  // namespace
}  // namespace qor::test
