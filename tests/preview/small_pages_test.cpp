// Several pages at once. At 25 percent a page with its gaps takes 202 by 284 pixels.
#include <QToolButton>

#include <gtest/gtest.h>

#include "preview/page_image.h"
#include "preview/window.h"

namespace qor::test {
namespace {

const std::map<std::string, int> kSeveral = {{"ZoomID", 9}, {"MultipageView", 1}};

std::map<int, PageImage*> pagesOf(Window& window) {
  std::map<int, PageImage*> pages;
  for (PageImage* image : window.view().findChildren<PageImage*>()) {
    if (image->isVisible()) pages[image->property("tag").toInt()] = image;
  }
  return pages;
}

// How many there is room for.
int roomOf(Window& window) {
  const QSize area = window.area().maximumViewportSize();
  return (area.width() / 202) * (area.height() / 284);
}

void click(PageImage* image) {
  QTest::mouseClick(image, Qt::LeftButton);
  QCoreApplication::processEvents();
}

QRect sheetOf(const PageImage* image) {
  return {image->pos(), QSize(198, 280)};
}

TEST(PreviewSmallPages, fillTheAreaAndMoveByIt) {
  Window window({reportOfPages(20), Window::zoomed(9)});
  window.click("cmdView_MultiPage");
  const int count = roomOf(window);
  ASSERT_GE(count, 8);
  EXPECT_EQ(static_cast<int>(pagesOf(window).size()), count);
  window.press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(window.page(), count + 1) << "Ctrl is nothing here";
  window.press(Qt::Key_PageUp);
  EXPECT_EQ(window.page(), 1);
  window.press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(window.page(), 20 - count + 1);
  window.click("cmdView_SinglePage");
  window.press(Qt::Key_PageDown);
  EXPECT_EQ(window.page(), 20 - count + 2);
}

TEST(PreviewSmallPages, showWhatStandsOnThem) {
  Window window({reportWithTextAt({5, 10, 20}), kSeveral});
  QTest::qWait(50);
  const QImage picture = window.picture("pScroll");
  const auto pages = pagesOf(window);
  ASSERT_EQ(pages.size(), 3U);
  // Inside of the outline and of the mark.
  const auto ink = [&](int page) {
    return firstInk(picture, sheetOf(pages.at(page)).adjusted(6, 6, -6, -6));
  };
  const int first = ink(1);
  EXPECT_GT(first, 0);
  // A line of 10 points takes 15 pixels at 100 percent.
  EXPECT_NEAR(ink(2) - first, 5 * 15 / 4, 2);
  EXPECT_NEAR(ink(3) - first, 15 * 15 / 4, 2);
}

TEST(PreviewSmallPages, areMarkedByAClickAndStay) {
  Window window({reportOfPages(40), kSeveral});
  const int count = roomOf(window);
  window.press(Qt::Key_PageDown);
  const auto before = pagesOf(window);
  auto& mark = window.control<QFrame>("pageMark");
  EXPECT_TRUE(mark.geometry().contains(sheetOf(before.at(count + 1))))
      << "the first one is current";
  click(before.at(count + 4));
  EXPECT_EQ(window.page(), count + 4);
  EXPECT_EQ(pagesOf(window), before) << "nothing moves";
  EXPECT_TRUE(mark.isVisible());
  EXPECT_TRUE(mark.geometry().contains(sheetOf(before.at(count + 4))));
  window.press(Qt::Key_PageDown);
  EXPECT_EQ(window.page(), 2 * count + 1) << "the page behind those on view";
  click(pagesOf(window).at(2 * count + 3));
  window.press(Qt::Key_PageUp);
  EXPECT_EQ(window.page(), count + 1);
  window.press(Qt::Key_End, Qt::ControlModifier);
  click(pagesOf(window).at(38));
  EXPECT_FALSE(window.control<QToolButton>("cmdView_Next").isEnabled());
  window.press(Qt::Key_PageDown);
  EXPECT_EQ(window.page(), 38) << "nothing is behind the last ones";
  EXPECT_EQ(pagesOf(window).begin()->first, 40 - count + 1);
  window.form().resize(800, 480);
  QCoreApplication::processEvents();
  EXPECT_EQ(window.page(), 38);
  EXPECT_EQ(pagesOf(window).count(38), 1U) << "a smaller window still shows it";
}

TEST(PreviewSmallPages, standAloneAfterADoubleClick) {
  Window window({reportOfPages(20), kSeveral});
  PageImage* third = pagesOf(window).at(3);
  QTest::mouseClick(third, Qt::LeftButton);
  QTest::mouseDClick(third, Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(window.page(), 3);
  EXPECT_EQ(pagesOf(window).size(), 1U);
  EXPECT_TRUE(window.control<QToolButton>("cmdView_SinglePage").isChecked());
}

QPalette darkColours() {
  QPalette colours(QColor(40, 40, 40));
  colours.setColor(QPalette::Mid, QColor(25, 25, 25));
  colours.setColor(QPalette::Highlight, QColor(42, 130, 218));
  return colours;
}

// How far two colours are apart, in the channel where they differ most.
int distance(QRgb a, QRgb b) {
  return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                   std::abs(qBlue(a) - qBlue(b))});
}

TEST(PreviewSmallPages, bearNumbersAndAMarkThatAreSeen) {
  for (const bool dark : {false, true}) {
    Window window({reportOfPages(20), kSeveral});
    if (dark) window.form().setPalette(darkColours());
    QCoreApplication::processEvents();
    const auto pages = pagesOf(window);
    const auto labels = window.view().findChildren<QLabel*>("pageNumber");
    std::map<int, QLabel*> shown;
    for (QLabel* label : labels) {
      if (label->isVisible()) shown[label->text().toInt()] = label;
    }
    ASSERT_EQ(shown.size(), pages.size());
    const QImage picture = window.picture("pScroll");
    for (const auto& [number, label] : shown) {
      EXPECT_TRUE(window.view().rect().contains(label->geometry()));
      for (const auto& [other, image] : pages)
        EXPECT_FALSE(label->geometry().intersects(sheetOf(image))) << number << " on " << other;
      const QImage text = picture.copy(label->geometry());
      int contrast = 0;
      for (int y = 0; y < text.height(); ++y) {
        for (int x = 0; x < text.width(); ++x)
          contrast = std::max(contrast, distance(text.pixel(x, y), text.pixel(0, 0)));
      }
      EXPECT_GT(contrast, 100) << number;
    }
    const QRect second = sheetOf(pages.at(2));
    EXPECT_LT(qGray(picture.pixel(second.right() + 1, second.center().y())),
              qGray(picture.pixel(second.right() + 8, second.center().y())))
        << "the shadow is darker than its ground";
    const QRect sheet = sheetOf(pages.at(1));
    const QRgb frame = picture.pixel(sheet.left() - 1, sheet.center().y());
    EXPECT_GT(distance(frame, picture.pixel(sheet.left() - 5, sheet.center().y())), 60) << dark;
    EXPECT_GT(distance(frame, picture.pixel(sheet.left() + 5, sheet.center().y())), 60) << dark;
  }
}

}  // namespace
}  // namespace qor::test
