// The views of the window. Pages are A4 on the printer that makes files: 793 by 1122 pixels at 100
// percent, with a gap of 10 around the sheet.
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>

#include <ZXing/ReadBarcode.h>
#include <gtest/gtest.h>

#include "preview/model/zoom_list.h"
#include "preview/page_image.h"
#include "preview/window.h"

namespace qor::test {
namespace {

// Each page has its text in a line of its own, 15 pixels high at 100 percent.
TEST(PreviewViews, showsThePageThatItNames) {
  struct Row {
    const char* what;
    std::map<std::string, int> stored;
    std::function<void(Window&)> go;
  };
  const auto typed = [](Window& window) {
    window.click("lblPageCurrent");
    window.press(Qt::Key_3);
    window.press(Qt::Key_Return);
  };
  const auto chosen = [](Window& window) {
    auto& list = window.control<QListView>("lstPages");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualRect(list.model()->index(2, 0)).center());
    QCoreApplication::processEvents();
  };
  const auto small = [](Window& window) {
    for (PageImage* image : window.view().findChildren<PageImage*>()) {
      if (image->property("tag").toInt() == 3) QTest::mouseDClick(image, Qt::LeftButton);
    }
    QCoreApplication::processEvents();
    window.form().mnuZoomListClick(kNaturalZoomEntry);
  };
  const auto keys = [](Window& window) {
    window.press(Qt::Key_PageDown);
    EXPECT_NEAR(window.firstInk(), 13 * 15, 15);
    window.press(Qt::Key_PageDown);
  };
  const std::vector<Row> rows = {{"typed", {{"ZoomID", 6}}, typed},
                                 {"list", {{"ZoomID", 6}, {"ListView", 1}}, chosen},
                                 {"small page", {{"ZoomID", 9}, {"MultipageView", 1}}, small},
                                 {"keys", {{"ZoomID", 6}}, keys}};
  for (const Row& row : rows) {
    Window window({reportWithTextAt({3, 13, 30, 40}), row.stored});
    row.go(window);
    EXPECT_EQ(window.page(), 3) << row.what;
    EXPECT_NEAR(window.firstInk(), 30 * 15, 15) << row.what;
  }
}

TEST(PreviewViews, wideViewHoldsTheWholeLine) {
  Window window({std::string(200, 'w') + "\r\n", Window::zoomed(kNaturalZoomEntry)});
  window.click("cmdView_WideView");
  EXPECT_NEAR(window.view().width(), 200 * 8, 4) << "of 10 points, a twelfth of an inch each";
  EXPECT_EQ(window.view().height(), 1122);
  EXPECT_EQ(window.view().pos(), QPoint(0, 0));
  EXPECT_NE(firstInk(window.picture("page_control"), {1560, 0, 30, 30}), -1) << "the last letters";
  window.click("cmdView_NormalView");
  EXPECT_EQ(window.view().width(), 813);
}

TEST(PreviewViews, wideViewStaysWhereAWindowCanScroll) {
  std::string lines;
  for (int i = 0; i < 250000; ++i) lines += "w\r\n";
  Window window({lines, {{"ZoomID", 0}, {"PreviewType", kWideView}}});
  EXPECT_NEAR(window.view().height(), 16e6, 1e5) << "at 500 percent it would end beyond 2^24";
  EXPECT_EQ(window.view().height(), window.doc().Settings.Scr.view_height);
  EXPECT_NE(window.status().find("and stands at 42"), std::string::npos) << window.status();
  EXPECT_EQ(window.control<QComboBox>("cmbZoom").currentText().left(8), "500% (42");
}

TEST(PreviewViews, listsPages) {
  Window window({reportOfPages(20), {{"ListView", 1}}});
  auto& list = window.control<QListView>("lstPages");
  EXPECT_TRUE(list.isVisible());
  EXPECT_EQ(list.model()->rowCount(), 20);
  EXPECT_EQ(list.model()->index(6, 0).data().toString(), "   Page 7");
  window.press(Qt::Key_PageDown);
  EXPECT_EQ(list.currentIndex().row(), 1);
  const auto click = [&list](Qt::MouseButton button, QPoint place) {
    QTest::mouseClick(list.viewport(), button, {}, place);
    QCoreApplication::processEvents();
  };
  const QRect line = list.visualRect(list.model()->index(4, 0));
  click(Qt::LeftButton, line.center());
  EXPECT_EQ(window.page(), 5);
  click(Qt::RightButton, line.center() - QPoint(0, line.height()));
  EXPECT_EQ(window.page(), 4) << "the line on the bar is the page on view";
  click(Qt::LeftButton, {10, list.viewport()->height() - 2});
  EXPECT_EQ(list.selectionModel()->selectedIndexes().value(0).row(), 3) << "below the last line";
  QWidget& divider = window.control("pSizeLine");
  QTest::mousePress(&divider, Qt::LeftButton, {}, {2, 50});
  QMouseEvent move(QEvent::MouseMove, {52, 50}, divider.mapToGlobal(QPointF(52, 50)), Qt::NoButton,
                   Qt::LeftButton, Qt::NoModifier);
  const int before = list.width();
  QCoreApplication::sendEvent(&divider, &move);
  EXPECT_EQ(list.width(), before + 50);
}

TEST(PreviewViews, showsTheReportsOwnBarcodes) {
  Window window(
      {"<barcode br_type=EAN_13 value=590123412345 left=20 top=20 right=100 bottom=60 "
       "value_show=1/>\r\n",
       Window::zoomed(kNaturalZoomEntry)});
  const QImage picture = window.picture("pScroll").convertToFormat(QImage::Format_RGB32);
  const ZXing::ImageView image(picture.constBits(), picture.width(), picture.height(),
                               ZXing::ImageFormat::BGRX, static_cast<int>(picture.bytesPerLine()));
  const auto found = ZXing::ReadBarcode(image, ZXing::DecodeHints().setTryHarder(true));
  EXPECT_EQ(found.text(), "5901234123457");
}

}  // namespace
}  // namespace qor::test
