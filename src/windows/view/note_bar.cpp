// Notes above the pages.
#include "windows/view/note_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "windows/tqor_image_form.h"

namespace qor {
namespace {

constexpr int kMargin = 6;  // pixels around the note

}  // namespace

NoteBar::NoteBar(QWidget* parent) : QFrame(parent), text_(new QLabel) {
  setObjectName("noteBar");
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  setAutoFillBackground(true);
  text_->setObjectName("noteBarText");
  text_->setTextFormat(Qt::PlainText);
  text_->setForegroundRole(QPalette::ToolTipText);
  text_->setWordWrap(true);
  auto* close = new QToolButton;
  close->setObjectName("noteBarClose");
  close->setIcon(TQorImageForm::ImageMenuList(ImageIndex::close, IconPlace::menu));
  close->setAutoRaise(true);
  close->setFocusPolicy(Qt::TabFocus);
  connect(close, &QToolButton::clicked, this, &NoteBar::dismiss);
  close_ = close;
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kMargin * 2, kMargin, kMargin, kMargin);
  row->addWidget(text_, 1);
  row->addWidget(close_, 0, Qt::AlignTop);
  hide();
}

void NoteBar::tell(const QString& note) {
  text_->setText(note);
  setVisible(!note.isEmpty() && note != dismissed_);
}

void NoteBar::setCloseText(const QString& text) {
  close_->setToolTip(text);
  close_->setAccessibleName(text);
}

void NoteBar::dismiss() {
  dismissed_ = text_->text();
  hide();
}

}  // namespace qor
