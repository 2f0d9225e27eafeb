// The bar of searches.
#include "windows/find/find_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "windows/find/find_edit.h"
#include "windows/tqor_image_form.h"

namespace qor {
namespace {

constexpr int kMargin = 4;  // pixels around the bar's controls
constexpr int kEditWidth = 220;
constexpr int kMostLetters = 10'000;

void name(QWidget& control, std::string_view text) {
  control.setToolTip(qtText(text));
  control.setAccessibleName(qtText(text));
}

}  // namespace

FindBar::FindBar(QWidget* parent) : QFrame(parent), edit_(new FindEdit(this)) {
  setObjectName("findBar");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kMargin * 2, kMargin, kMargin, kMargin);
  row->setSpacing(kMargin);
  addControls(*row);
  connect(edit_, &FindEdit::textEdited, this, &FindBar::queryChanged);
  connect(edit_, &FindEdit::moveWanted, this, &FindBar::moveWanted);
  connect(previous_, &QToolButton::clicked, this, [this] { emit moveWanted(-1); });
  connect(next_, &QToolButton::clicked, this, [this] { emit moveWanted(1); });
  connect(list_, &QToolButton::toggled, this, &FindBar::listToggled);
  connect(close_, &QToolButton::clicked, this, &FindBar::closeWanted);
  hide();
}

void FindBar::addControls(QHBoxLayout& row) {
  edit_->setObjectName("txtFind");
  edit_->setMaxLength(kMostLetters);
  edit_->setMinimumWidth(kEditWidth);
  edit_->setClearButtonEnabled(true);
  row.addWidget(edit_);
  previous_ = addButton("cmdFindPrevious");
  previous_->setArrowType(Qt::UpArrow);
  next_ = addButton("cmdFindNext");
  next_->setArrowType(Qt::DownArrow);
  match_case_ = addChoice("cmdMatchCase", "Aa", false);
  whole_word_ = addChoice("cmdWholeWord", "|ab|", false);
  any_blanks_ = addChoice("cmdAnyBlanks", "a__b", true);
  found_ = new QLabel(this);
  found_->setObjectName("lblFound");
  found_->setTextFormat(Qt::PlainText);
  row.addWidget(found_, 1);
  list_ = addButton("cmdHitList");
  list_->setIcon(TQorImageForm::ImageMenuList(ImageIndex::pageList, IconPlace::menu));
  list_->setCheckable(true);
  close_ = addButton("cmdFindClose");
  close_->setIcon(TQorImageForm::ImageMenuList(ImageIndex::close, IconPlace::menu));
}

QToolButton* FindBar::addButton(const char* name) {
  auto* button = new QToolButton(this);
  button->setObjectName(name);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  layout()->addWidget(button);
  return button;
}

QToolButton* FindBar::addChoice(const char* name, const QString& sign, bool on) {
  QToolButton* button = addButton(name);
  button->setText(sign);
  button->setCheckable(true);
  button->setChecked(on);
  connect(button, &QToolButton::toggled, this, &FindBar::queryChanged);
  return button;
}

void FindBar::open() {
  show();
  edit_->setFocus(Qt::ShortcutFocusReason);
  edit_->selectAll();
}

FindQuery FindBar::query() const {
  return {text().toStdU32String(), match_case_->isChecked(), whole_word_->isChecked(),
          any_blanks_->isChecked()};
}

QString FindBar::text() const {
  return edit_->text();
}

void FindBar::setEarlier(const QStringList& texts) {
  edit_->setEarlier(texts);
}

void FindBar::tell(const QString& found) {
  found_->setText(found);
}

bool FindBar::showsList() const {
  return list_->isChecked();
}

void FindBar::retranslate() {
  const FindTexts& texts = findTexts();
  edit_->setPlaceholderText(qtText(texts.findInReport));
  edit_->setAccessibleName(qtText(texts.findInReport));
  name(*previous_, previewTexts().findPrevious);
  name(*next_, previewTexts().findNext);
  name(*match_case_, texts.matchCase);
  name(*whole_word_, texts.wholeWord);
  name(*any_blanks_, texts.anyBlanks);
  name(*list_, texts.hitList);
  name(*close_, previewTexts().close);
}

}  // namespace qor
