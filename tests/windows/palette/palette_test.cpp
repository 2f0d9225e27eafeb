// The palette as a user meets it: a button that opens cells of 16 by 16 pixels, sixteen in a row.
#include <QBitmap>
#include <QDialog>
#include <QLineEdit>
#include <QScreen>
#include <QStyle>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

#include "support/test.h"
#include "windows/palette/vdropdownpalette.h"
#include "windows/palette/vpalettecontrol.h"

namespace qor::test {
namespace {

constexpr Color kNavy = 0x800000;  // cell 1

// Colors that were told, and those that the button had then.
using Fired = std::vector<std::pair<Color, Color>>;

// A dialog with an edit above a button that shows navy.
class Picker {
 public:
  Picker() {
    button.setAccessibleName("Font colour");
    button.setColor(kNavy);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(&edit);
    layout->addWidget(&button);
    QObject::connect(&button, &VDropDownPalette::OnDropDown,
                     [this] { openedBefore.push_back(cells() == nullptr); });
    QObject::connect(&button, &VDropDownPalette::OnColorChanged,
                     [this](Color color) { fired.emplace_back(color, button.color()); });
    dialog.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    button.setFocus();
  }

  // The cells, where they are open.
  VPaletteControl* cells() const {
    QWidget* popup = QApplication::activePopupWidget();
    return popup == nullptr ? nullptr : popup->findChild<VPaletteControl*>();
  }

  // Opens the palette and presses keys.
  void press(const std::vector<Qt::Key>& keys) {
    QTest::mouseClick(&button, Qt::LeftButton);
    for (const Qt::Key key : keys) QTest::keyClick(cells(), key);
  }

  QDialog dialog;
  QLineEdit edit{&dialog};
  VDropDownPalette button{&dialog};
  std::vector<bool> openedBefore;
  Fired fired;
};

QPoint middleOf(int cell) {
  return {cell % 16 * 16 + 8, cell / 16 * 16 + 8};
}

// All that has a color in a picture.
QRect areaOf(const QImage& picture, const QColor& color) {
  const QImage area = picture.createMaskFromColor(color.rgb(), Qt::MaskOutColor);
  return QRegion(QBitmap::fromImage(area)).boundingRect();
}

TEST(Palette, keysChooseOrLeave) {
  using enum Qt::Key;
  constexpr Color kOther = 0x123456;  // of no cell
  constexpr int kClosed = -2;
  // What is shown at first, the keys, the cell that is then highlighted, and the color that fires.
  const std::tuple<Color, std::vector<Qt::Key>, int, std::optional<Color>> rows[] = {
      {kNavy, {Key_Space}, kClosed, kNavy},
      {kNavy, {Key_Right, Key_Right, Key_Space}, kClosed, 0x008000},
      {kNavy, {Key_Down, Key_Left, Key_Up}, 0, {}},
      {kNavy, {Key_Right, Key_Escape}, kClosed, {}},
      {kNavy, {Key_Right, Key_Return}, kClosed, {}},
      {kNavy, {Key_Right, Key_Enter}, kClosed, {}},
      {kOther, {Key_Space}, kNoCell, {}},
      {kOther, {Key_Down, Key_Down}, 16, {}}};
  for (const auto& [first, keys, cell, fired] : rows) {
    Picker picker;
    picker.button.setColor(first);
    picker.press(keys);
    const bool isOpen = picker.cells() != nullptr;
    EXPECT_EQ(isOpen ? picker.cells()->cell() : kClosed, cell);
    EXPECT_EQ(picker.button.isDown(), isOpen);
    EXPECT_EQ(picker.button.hasFocus(), !isOpen);
    EXPECT_EQ(picker.button.color(), fired.value_or(first));
    EXPECT_EQ(picker.fired, Fired(fired ? 1 : 0, {fired.value_or(0), fired.value_or(0)}));
    EXPECT_EQ(picker.openedBefore, std::vector{true});
    EXPECT_TRUE(picker.dialog.isVisible());
  }
}

TEST(Palette, opensByItsKeysOnly) {
  for (const auto& [key, opens] :
       {std::pair("Space", true), {"Alt+Down", true}, {"Down", false}, {"Return", false}}) {
    Picker picker;
    QTest::keySequence(&picker.button, QKeySequence(key));
    EXPECT_EQ(picker.cells() != nullptr, opens) << key;
  }
}

TEST(Palette, mouseMovesTheHighlightAndTakesACell) {
  Picker picker;
  picker.press({});
  QTest::mouseMove(picker.cells(), middleOf(87));
  EXPECT_EQ(picker.cells()->cell(), 87);
  EXPECT_EQ(picker.cells()->accessibleDescription(), "#fffe00 (255, 254, 0)");
  EXPECT_EQ(picker.cells()->accessibleName(), "Font colour");
  QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_Right, {});
  shortcut.ignore();
  QApplication::sendEvent(picker.cells(), &shortcut);
  EXPECT_TRUE(shortcut.isAccepted()) << "the window has no use of its keys";
  QHelpEvent help(QEvent::ToolTip, middleOf(87), picker.cells()->mapToGlobal(middleOf(87)));
  QApplication::sendEvent(picker.cells(), &help);
  EXPECT_EQ(QToolTip::text(), "#fffe00 (255, 254, 0)");
  QTest::mouseClick(picker.cells(), Qt::RightButton, {}, middleOf(50));
  QTest::mousePress(picker.cells(), Qt::LeftButton, {}, middleOf(50));
  QTest::mouseRelease(picker.cells(), Qt::LeftButton, {}, QPoint(8, 300));
  EXPECT_TRUE(picker.fired.empty()) << "another button, and one that is let go outside";
  QTest::mouseClick(picker.cells(), Qt::LeftButton, {}, middleOf(50));
  EXPECT_EQ(picker.cells(), nullptr);
  EXPECT_EQ(picker.fired, (Fired{{0xB6FFB6, 0xB6FFB6}}));
  EXPECT_EQ(picker.button.accessibleDescription(), "#b6ffb6 (182, 255, 182)");
}

TEST(Palette, closesWithItsFocus) {
  Picker picker;
  picker.press({Qt::Key_Right});
  picker.edit.setFocus();
  EXPECT_EQ(picker.cells(), nullptr);
  EXPECT_TRUE(picker.edit.hasFocus());
  // So does a click outside, such as on the button.
  picker.press({});
  QWidget* popup = QApplication::activePopupWidget();
  QTest::mouseClick(popup->windowHandle(), Qt::LeftButton, {},
                    popup->mapFromGlobal(picker.button.mapToGlobal(QPoint(5, 5))));
  QCoreApplication::processEvents();
  EXPECT_EQ(picker.cells(), nullptr);
  EXPECT_FALSE(picker.button.isDown());
  EXPECT_TRUE(picker.fired.empty());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(picker.button.findChild<VPaletteControl*>(), nullptr);
}

TEST(Palette, standsUnderItsButtonAndOnTheScreen) {
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  const QSize form(258, 178);
  // Where the button's corner is, and that of the palette.
  const std::pair<QPoint, QPoint> rows[] = {
      {{100, 100}, {100, 121}},
      {{100, screen.bottom() - 100}, {100, screen.bottom() - 100 - form.height()}},
      {{screen.right() - 47, 100}, {screen.right() + 1 - form.width(), 121}},
      {{-20, 100}, {0, 121}},
      {{100, screen.bottom() + 1 - 21 - form.height()}, {100, screen.bottom() + 1 - form.height()}},
  };
  for (const auto& [corner, expected] : rows) {
    VDropDownPalette button;
    button.setWindowFlag(Qt::FramelessWindowHint);
    button.move(corner);
    button.show();
    QTest::mouseClick(&button, Qt::LeftButton);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    const QRect place = QApplication::activePopupWidget()->frameGeometry();
    EXPECT_EQ(place.size(), form);
    EXPECT_EQ(place.topLeft(), expected) << corner.x() << " " << corner.y();
  }
}

TEST(Palette, drawsColorsStatesAndTheHighlight) {
  Picker picker;
  EXPECT_EQ(picker.button.size(), QSize(48, 21));
  const auto picture = [&] { return picker.button.grab().toImage(); };
  const QImage focused = picture();
  const int arrow = picker.button.style()->pixelMetric(QStyle::PM_MenuButtonIndicator);
  // Inside of a frame of one pixel, four from the edge and from the arrow.
  EXPECT_EQ(areaOf(focused, QColor(0, 0, 128)), QRect(5, 5, 38 - arrow, 11));
  EXPECT_EQ(focused.pixelColor(4, 10), picker.button.palette().color(QPalette::ButtonText));
  picker.edit.setFocus();
  const QImage up = picture();
  EXPECT_NE(up, focused);
  picker.button.setEnabled(false);
  picker.press({});
  EXPECT_EQ(picker.cells(), nullptr);
  const QColor pale = picture().pixelColor(15, 10);
  EXPECT_GT(pale.red(), 50);
  EXPECT_GT(pale.blue(), pale.red());
  picker.button.setEnabled(true);
  EXPECT_EQ(picture(), up);
  picker.press({});
  EXPECT_NE(picture(), up);
  const QImage cells = picker.cells()->grab().toImage();
  for (const int cell : {0, 15, 16, 87, 160, 175}) {
    const SColor& color = paletteColors().at(static_cast<std::size_t>(cell));
    EXPECT_EQ(cells.pixelColor(middleOf(cell)), QColor(color.red, color.green, color.blue)) << cell;
  }
  // The frame of cell 1 has both tones on all sides; another cell has a thin one, and a gap.
  for (const QPoint& edge : {QPoint(16, 8), {31, 8}, {24, 0}, {24, 15}}) {
    const QPoint inward = (QPoint(24, 8) - edge) / 7;
    EXPECT_EQ(cells.pixelColor(edge), QColor(Qt::black)) << edge.x() << " " << edge.y();
    for (const int depth : {1, 2})
      EXPECT_EQ(cells.pixelColor(edge + depth * inward), QColor(Qt::white)) << edge.x();
  }
  const QColor color = cells.pixelColor(middleOf(87));
  EXPECT_EQ(areaOf(cells, color), QRect(QPoint(114, 82), QSize(12, 12)));
  EXPECT_EQ(cells.pixel(113, 88), picker.cells()->palette().color(QPalette::Mid).rgb());
  EXPECT_NE(cells.pixelColor(112, 88), cells.pixelColor(113, 88));
}

}  // namespace
}  // namespace qor::test
