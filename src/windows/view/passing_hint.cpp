// Passing hints.
#include "windows/view/passing_hint.h"

#include <QAccessible>
#include <QEvent>
#include <QTimer>

namespace qor {
namespace {

constexpr int kTime = 2000;    // ms
constexpr int kDistance = 16;  // from the bottom of the area, pixels
constexpr int kMargin = 8;     // around the text, pixels

}  // namespace

PassingHint::PassingHint(QWidget* area) : QLabel(area), passing_(new QTimer(this)) {
  setObjectName("passingHint");
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setTextFormat(Qt::PlainText);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  setMargin(kMargin);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
  passing_->setSingleShot(true);
  passing_->setInterval(kTime);
  connect(passing_, &QTimer::timeout, this, &QWidget::hide);
  area->installEventFilter(this);
}

void PassingHint::tell(const QString& text) {
  setText(text);
  moveToBottom();
  show();
  raise();
  passing_->start();
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

bool PassingHint::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parent() && event->type() == QEvent::Resize) moveToBottom();
  return QLabel::eventFilter(watched, event);
}

void PassingHint::moveToBottom() {
  resize(sizeHint());
  const QSize area = parentWidget()->size();
  move((area.width() - width()) / 2, area.height() - height() - kDistance);
}

}  // namespace qor
