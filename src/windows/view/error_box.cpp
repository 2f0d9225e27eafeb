// Errors over the window.
#include "windows/view/error_box.h"

#include <QMessageBox>
#include <QTimer>
#include <utility>

#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "windows/view/vpage.h"

namespace qor {

ErrorBox::ErrorBox(const VPage& page_control, QWidget* window)
    : page_control_(page_control), window_(window) {
}

void ErrorBox::tell(const QString& error) {
  last_ = error;
  if (std::exchange(shown_, error) == error) return;
  waiting_ = error;
  if (on_screen_) showSoon();
}

void ErrorBox::windowIsOnScreen() {
  if (std::exchange(on_screen_, true)) return;
  if (!waiting_.isEmpty()) showSoon();
}

// Whoever met the error may yet tell it in the place of the page.
void ErrorBox::showSoon() {
  QTimer::singleShot(0, this, &ErrorBox::showNow);
}

void ErrorBox::showNow() {
  const QString text = std::exchange(waiting_, {});
  if (text.isEmpty() || text == page_control_.message()) return;
  if (box_ == nullptr) {
    box_ = new QMessageBox(window_);
    box_->setIcon(QMessageBox::Critical);
    box_->setModal(false);
    box_->setTextFormat(Qt::PlainText);
  }
  box_->setWindowTitle(qtText(interfaceTexts().ApplicationTitle));
  box_->setText(text);
  box_->show();
  put_ = box_->pos();
  centre();
}

void ErrorBox::centre() {
  if (box_ == nullptr || !box_->isVisible() || box_->pos() != put_) return;
  const QRect box = box_->frameGeometry();
  box_->move(window_->frameGeometry().center() - QPoint(box.width(), box.height()) / 2);
  put_ = box_->pos();
}

}  // namespace qor
