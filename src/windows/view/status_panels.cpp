// Panels of the status bar.
#include "windows/view/status_panels.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QStatusBar>
#include <utility>

namespace qor {
namespace {

// Widths at least, in pixels.
constexpr int kMessageWidth = 200;
constexpr int kPagesWidth = 170;
constexpr int kDatesWidth = 130;

constexpr QColor kBlue(0, 0, 0xFF);
constexpr QColor kBlueOnDark(0x8C, 0xB4, 0xFF);
constexpr int kMiddle = 128;  // of lightness

// A text that is wider than its label ends in an ellipsis: the tool tip has it whole.
class ElidedLabel : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QRect place = contentsRect();
    painter.drawText(place, Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, place.width()));
  }
};

QLabel* panel(QStatusBar& bar, const char* name, int width, int stretch) {
  auto* label = new ElidedLabel(&bar);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setMinimumWidth(width);
  label->setContentsMargins(6, 2, 6, 2);
  bar.addWidget(label, stretch);
  return label;
}

}  // namespace

// Turns clicks on a label into calls.
class ClickFilter : public QObject {
 public:
  using QObject::QObject;

  std::function<void()> action;
  bool enabled = false;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool clicked = event->type() == QEvent::MouseButtonRelease ||
                         (event->type() == QEvent::KeyPress &&
                          static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space);
    if (!clicked || !enabled || !action) return QObject::eventFilter(watched, event);
    action();
    return true;
  }
};

StatusPanels::StatusPanels(QStatusBar& bar)
    : message_(panel(bar, "stBarMessage", kMessageWidth, 1)),
      clicks_(new ClickFilter(message_)),
      pages_(panel(bar, "stBarPages", kPagesWidth, 0)),
      dates_(panel(bar, "stBarDates", kDatesWidth, 0)) {
  // A long message must not widen the window.
  message_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  message_->installEventFilter(clicks_);
}

void StatusPanels::setMessage(const QString& text) {
  message_->setText(QString(text).replace('\n', ' '));
  message_->setToolTip(text);
  message_->setPalette({});
  setClickable(false);
}

void StatusPanels::setWork(const QString& text) {
  setMessage(text);
  QPalette blue = message_->palette();
  const bool dark = blue.color(QPalette::Window).lightness() < kMiddle;
  blue.setColor(QPalette::WindowText, dark ? kBlueOnDark : kBlue);
  message_->setPalette(blue);
}

QString StatusPanels::message() const {
  return message_->text();
}

void StatusPanels::setClickable(bool clickable) {
  clicks_->enabled = clickable;
  message_->setCursor(clickable ? Qt::PointingHandCursor : Qt::ArrowCursor);
  message_->setFocusPolicy(clickable ? Qt::TabFocus : Qt::NoFocus);
  QFont font = message_->font();
  font.setUnderline(clickable);
  message_->setFont(font);
}

void StatusPanels::onClick(std::function<void()> action) {
  clicks_->action = std::move(action);
}

void StatusPanels::setPages(const QString& text) {
  pages_->setText(text);
}

void StatusPanels::setDates(const QString& text) {
  dates_->setText(text);
}

}  // namespace qor
