// The button of the palette, and the form that floats under it.
#include "windows/palette/vdropdownpalette.h"

#include <QFrame>
#include <QKeyEvent>
#include <QScreen>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/qt_text.h"
#include "windows/palette/vpalettecontrol.h"
#include "windows/qt_color.h"

namespace qor {
namespace {

constexpr QSize kButtonSize{48, 21};
constexpr int kColorMargin = 4;  // around the colour, pixels
constexpr double kDisabledOpacity = 0.35;

// Under the button, above it where there is no room, and in any case on the screen.
QPoint formCorner(const QRect& button, const QSize& form, const QRect& screen) {
  const int below = button.bottom() + 1;
  const bool hasRoom = below + form.height() <= screen.bottom() + 1;
  const int left = std::min(button.left(), screen.right() + 1 - form.width());
  const int top = hasRoom ? below : button.top() - form.height();
  return {std::max(left, screen.left()), std::max(top, screen.top())};
}

// Frame and arrow as the style has them for buttons that open something.
QStyleOptionButton buttonOption(const QAbstractButton& button) {
  QStyleOptionButton option;
  option.initFrom(&button);
  option.features = QStyleOptionButton::HasMenu;
  option.state |= button.isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
  return option;
}

void drawFocus(QStylePainter& painter, const QStyleOptionButton& button, const QWidget& widget) {
  QStyleOptionFocusRect option;
  option.initFrom(&widget);
  option.state |= QStyle::State_KeyboardFocusChange;
  option.rect = widget.style()->subElementRect(QStyle::SE_PushButtonFocusRect, &button, &widget);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

bool opensPalette(const QKeyEvent& event) {
  return event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier);
}

}  // namespace

VDropDownPalette::VDropDownPalette(QWidget* parent) : QAbstractButton(parent) {
  setFixedSize(kButtonSize);
  setFocusPolicy(Qt::StrongFocus);
  setColor(color_);
  connect(this, &QAbstractButton::clicked, this, &VDropDownPalette::openForm);
}

void VDropDownPalette::setColor(Color color) {
  color_ = color;
  setAccessibleDescription(qtText(colorText(SColor(color))));
  update();
}

void VDropDownPalette::openForm() {
  emit OnDropDown();
  setDown(true);
  auto* form = new QFrame(this, Qt::Popup | Qt::FramelessWindowHint);
  form->setAttribute(Qt::WA_DeleteOnClose);
  // A click on the button closes the palette, and is not to open it again.
  form->setAttribute(Qt::WA_NoMouseReplay);
  form->setFrameStyle(QFrame::Box | QFrame::Plain);
  form->installEventFilter(this);
  auto* cells = new VPaletteControl;
  auto* layout = new QVBoxLayout(form);
  layout->setContentsMargins({});
  layout->addWidget(cells);
  cells->setAccessibleName(accessibleName());
  cells->setColor(color_);
  connect(cells, &VPaletteControl::leaveAsked, form, &QWidget::close);
  connect(cells, &VPaletteControl::colorTaken, form, &QWidget::close);
  connect(cells, &VPaletteControl::colorTaken, this, &VDropDownPalette::take);
  form->move(
      formCorner({mapToGlobal(QPoint()), size()}, form->sizeHint(), screen()->availableGeometry()));
  cells->setFocus();
  form->show();
}

void VDropDownPalette::take(Color color) {
  setColor(color);
  emit OnColorChanged(color);
}

bool VDropDownPalette::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Hide) setDown(false);
  return QAbstractButton::eventFilter(watched, event);
}

// Some desktops let Enter press any button; here it is left to the default one of a dialog.
void VDropDownPalette::keyPressEvent(QKeyEvent* event) {
  if (opensPalette(*event)) {
    click();
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    event->ignore();
  } else {
    QAbstractButton::keyPressEvent(event);
  }
}

// Some styles fill the rectangle of the focus, so the colour is drawn above it.
void VDropDownPalette::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  const QStyleOptionButton option = buttonOption(*this);
  painter.drawControl(QStyle::CE_PushButtonBevel, option);
  if (hasFocus()) drawFocus(painter, option, *this);
  const int arrow = style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, this);
  const QRect place =
      rect().adjusted(kColorMargin, kColorMargin, -kColorMargin - arrow, -kColorMargin);
  painter.setOpacity(isEnabled() ? 1.0 : kDisabledOpacity);
  painter.fillRect(place, qtColor(color_));
  painter.setPen(palette().color(QPalette::ButtonText));
  painter.drawRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace qor
