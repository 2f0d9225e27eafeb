// The start window.
#include "windows/start/start_window.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "window_model/preview_texts.h"
#include "windows/start/key_help.h"
#include "windows/tqor_image_form.h"

namespace qor {
namespace {

constexpr QSize kSize = {560, 420};
constexpr int kIcon = 64;

// The name, and in gray the directory.
QString entryText(const QString& path) {
  const QFileInfo file(path);
  return file.fileName() + "    " + file.path();
}

}  // namespace

StartWindow::StartWindow(UserSettings& settings)
    : opening_(settings, this), recent_list_(new QListWidget(this)), message_(new QLabel(this)) {
  const PreviewTexts& texts = previewTexts();
  const QIcon icon = TQorImageForm::ImageMenuList(ImageIndex::program, IconPlace::button);
  setWindowIcon(icon);
  setWindowTitle(qtText(interfaceTexts().ApplicationTitle).trimmed());
  setAcceptDrops(true);
  resize(kSize);

  auto* picture = new QLabel(this);
  picture->setPixmap(icon.pixmap(kIcon));
  picture->setAlignment(Qt::AlignCenter);
  auto* hint = new QLabel(qtText(texts.dropReport), this);
  hint->setAlignment(Qt::AlignCenter);
  auto* open = new QPushButton(qtText(texts.openReport), this);
  open->setObjectName("cmdOpen");
  open->setShortcut(QKeySequence::Open);
  open->setDefault(true);
  auto* caption = new QLabel(qtText(texts.recentReports), this);
  caption->setBuddy(recent_list_);
  recent_list_->setObjectName("lstRecent");
  recent_list_->setAccessibleName(caption->text());
  recent_list_->setTextElideMode(Qt::ElideMiddle);
  recent_list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  message_->setObjectName("lblMessage");
  message_->setWordWrap(true);
  message_->hide();

  auto* layout = new QVBoxLayout(this);
  layout->addSpacing(layout->spacing());
  layout->addWidget(picture);
  layout->addWidget(hint);
  layout->addWidget(open, 0, Qt::AlignCenter);
  layout->addSpacing(layout->spacing());
  layout->addWidget(caption);
  layout->addWidget(recent_list_, 1);
  layout->addWidget(message_);

  connect(open, &QPushButton::clicked, &opening_, &ReportOpening::mnuOpenClick);
  connect(recent_list_, &QListWidget::itemActivated, this, [this](const QListWidgetItem* entry) {
    opening_.open(entry->data(Qt::UserRole).toString());
  });
  connect(&opening_, &ReportOpening::opened, this, &QWidget::close);
  connect(&opening_, &ReportOpening::failed, this, &StartWindow::tell);
  fillRecent();
}

void StartWindow::fillRecent() {
  recent_list_->clear();
  for (const QString& path : opening_.recent()) {
    auto* entry = new QListWidgetItem(entryText(path), recent_list_);
    entry->setData(Qt::UserRole, path);
    entry->setToolTip(path);
  }
}

void StartWindow::tell(const QString& reason) {
  fillRecent();
  message_->setText(reason);
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
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace qor
