// What the document code tells while the window is open.
#include <QMessageBox>
#include <QTimer>

#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/vpage.h"

namespace qor {

void TfrmView::showMessage(MessageKind kind, const QString& text) {
  status_.setMessage(text);
  if (kind != MessageKind::error) return;
  lastError_ = text;
  if (std::exchange(shownError_, text) == text) return;
  boxedError_ = text;
  if (onScreen_) showErrorBoxSoon();
}

// Boxes wait until there is a window for them to stand over.
void TfrmView::windowIsOnScreen() {
  if (std::exchange(onScreen_, true)) return;
  if (!boxedError_.isEmpty()) showErrorBoxSoon();
}

// Whoever met the error may yet tell it in the place of the page.
void TfrmView::showErrorBoxSoon() {
  QTimer::singleShot(0, this, &TfrmView::showErrorBox);
}

void TfrmView::showErrorBox() {
  const QString text = std::exchange(boxedError_, {});
  if (text.isEmpty() || text == page_control_->message()) return;
  if (errorBox_ == nullptr) {
    errorBox_ = new QMessageBox(this);
    errorBox_->setIcon(QMessageBox::Critical);
    errorBox_->setModal(false);
    errorBox_->setTextFormat(Qt::PlainText);
  }
  errorBox_->setWindowTitle(qtText(interfaceTexts().ApplicationTitle));
  errorBox_->setText(text);
  errorBox_->show();
  boxPlace_ = errorBox_->pos();
  centreErrorBox();
}

// A box that was moved stays where it was put.
void TfrmView::centreErrorBox() {
  if (errorBox_ == nullptr || !errorBox_->isVisible() || errorBox_->pos() != boxPlace_) return;
  const QRect box = errorBox_->frameGeometry();
  errorBox_->move(frameGeometry().center() - QPoint(box.width(), box.height()) / 2);
  boxPlace_ = errorBox_->pos();
}

}  // namespace qor
