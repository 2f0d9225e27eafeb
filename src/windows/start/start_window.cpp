// The start window.
#include "windows/start/start_window.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "window_model/preview_texts.h"
#include "windows/start/key_help.h"
#include "windows/start/recent_list.h"
#include "windows/tqor_image_form.h"

namespace qor {
namespace {

constexpr QSize kSize = {560, 420};
constexpr int kIcon = 64;

bool isEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

StartWindow::StartWindow(UserSettings& settings)
    : opening_(settings, this),
      open_(new QPushButton(this)),
      recent_list_(new RecentList(this)),
      message_(new QLabel(this)) {
  setWindowIcon(TQorImageForm::ImageMenuList(ImageIndex::program, IconPlace::button));
  setWindowTitle(qtText(interfaceTexts().ApplicationTitle).trimmed());
  setAcceptDrops(true);
  resize(kSize);
  makeControls();
  layControlsOut();
  connect(open_, &QPushButton::clicked, &opening_, &ReportOpening::mnuOpenClick);
  connect(recent_list_, &RecentList::chosen, &opening_,
          [this](const std::string& path) { opening_.open({path}); });
  connect(&opening_, &ReportOpening::opened, this, &QWidget::close);
  connect(&opening_, &ReportOpening::failed, this, &StartWindow::tell);
  recent_list_->fill(opening_.recent());
}

void StartWindow::makeControls() {
  open_->setText(qtText(previewTexts().openReport));
  open_->setObjectName("cmdOpen");
  open_->setShortcut(QKeySequence::Open);
  open_->setDefault(true);
  recent_list_->setObjectName("lstRecent");
  recent_list_->setAccessibleName(qtText(previewTexts().recentReports));
  message_->setObjectName("lblMessage");
  message_->setTextFormat(Qt::PlainText);
  message_->setWordWrap(true);
  message_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  message_->hide();
}

void StartWindow::layControlsOut() {
  auto* picture = new QLabel(this);
  picture->setPixmap(windowIcon().pixmap(kIcon));
  picture->setAlignment(Qt::AlignCenter);
  auto* hint = new QLabel(qtText(previewTexts().dropReport), this);
  hint->setAlignment(Qt::AlignCenter);
  auto* caption = new QLabel(qtText(previewTexts().recentReports), this);
  caption->setBuddy(recent_list_);
  auto* layout = new QVBoxLayout(this);
  layout->addSpacing(layout->spacing());
  layout->addWidget(picture);
  layout->addWidget(hint);
  layout->addWidget(open_, 0, Qt::AlignCenter);
  layout->addSpacing(layout->spacing());
  layout->addWidget(caption);
  layout->addWidget(recent_list_, 1);
  layout->addWidget(message_);
}

void StartWindow::tell(const QString& reasons) {
  recent_list_->fill(opening_.recent());
  message_->setText(reasons);
  message_->show();
}

void StartWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (ReportOpening::holdsFiles(*event->mimeData())) ReportOpening::acceptCopy(*event);
}

void StartWindow::dropEvent(QDropEvent* event) {
  ReportOpening::acceptCopy(*event);
  opening_.openDropped(*event->mimeData());
}

void StartWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else if (event->key() == Qt::Key_F1) {
    showKeyHelp(*this);
  } else if (isEnter(*event)) {
    // The list has met the key before, and opens its report.
    const bool isOfList = focusWidget() == recent_list_ && recent_list_->currentItem() != nullptr;
    if (!isOfList) open_->click();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace qor
