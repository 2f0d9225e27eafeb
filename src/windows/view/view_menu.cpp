// The popup menu.
#include "windows/view/view_menu.h"

#include <QActionGroup>
#include <algorithm>
#include <map>
#include <string_view>

#include "document/vdoc.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "window_model/page_notes.h"
#include "window_model/preview_texts.h"
#include "window_model/zoom_list.h"
#include "windows/start/report_name.h"
#include "windows/view/command_table.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/view_desk.h"
#include "windows/view/view_parts.h"

namespace qor {
namespace {

// Other menus stand behind one entry and before another.
constexpr std::string_view kRecentBehind = "mnuOpen";
constexpr std::string_view kZoomsBehind = "mnuZoomMinus";
constexpr std::string_view kLanguagesBefore = "mnuClose";

const Language& languageOfEntry(const QAction* entry) {
  return languageOf(entry->data().toString().toStdString());
}

}  // namespace

ViewMenu::ViewMenu(TfrmView& form) : form_(form), mnuPopup_(new QMenu(&form)) {
  mnuPopup_->setObjectName("mnuPopup");
  addEntries();
  connect(mnuZoom_, &QMenu::triggered, this,
          [this](const QAction* entry) { emit zoomChosen(entry->data().toInt()); });
  connect(mnuRecent_, &QMenu::triggered, this, [this](const QAction* entry) {
    emit recentChosen(entry->data().toByteArray().toStdString());
  });
  connect(mnuCodePage_, &QMenu::triggered, this,
          [this](const QAction* entry) { emit codePageChosen(entry->data().toInt()); });
  connect(mnuLanguage_, &QMenu::triggered, this,
          [this](const QAction* entry) { emit languageChosen(languageOfEntry(entry)); });
}

void ViewMenu::addEntries() {
  std::map<OneOf, QActionGroup*> groups;
  for (const CommandRow& row : commandTable()) {
    if (row.id == kLanguagesBefore) addLanguages();
    QAction* entry = mnuPopup_->addAction(QString());
    entries_.push_back(entry);
    entry->setObjectName(row.id);
    entry->setIcon(TQorImageForm::ImageMenuList(row.image, IconPlace::menu));
    entry->setCheckable(row.checkedWhen != nullptr);
    // A check mark needs the place of the image.
    entry->setIconVisibleInMenu(!entry->isCheckable());
    entry->setVisible(!row.hidden);
    if (row.oneOf != OneOf::none) {
      QActionGroup*& group = groups[row.oneOf];
      if (group == nullptr) group = new QActionGroup(this);
      group->addAction(entry);
    }
    if (row.run != nullptr)
      connect(entry, &QAction::triggered, this, [this, &row] { form_.run(row.run); });
    if (row.id == kRecentBehind) mnuRecent_ = addMenu("mnuRecent");
    if (row.id == kZoomsBehind) addZooms();
    if (row.endsGroup) mnuPopup_->addSeparator();
  }
}

QMenu* ViewMenu::addMenu(const char* name) {
  QMenu* menu = mnuPopup_->addMenu(QString());
  menu->setObjectName(name);
  return menu;
}

void ViewMenu::addZooms() {
  mnuZoom_ = addMenu("mnuZoom");
  for (const ZoomMenuEntry& zoom : kZoomMenu)
    mnuZoom_->addAction(qtText(zoom.text))->setData(zoomEntryOf(zoom.percent));
}

void ViewMenu::addLanguages() {
  mnuPopup_->addSeparator();
  mnuCodePage_ = addMenu("mnuCodePage");
  mnuLanguage_ = addMenu("mnuLanguage");
  mnuLanguage_->setIcon(TQorImageForm::ImageMenuList(ImageIndex::language, IconPlace::menu));
  auto* group = new QActionGroup(this);
  for (const Language* language : languages()) {
    QAction* entry = group->addAction(mnuLanguage_->addAction(QString()));
    entry->setCheckable(true);
    entry->setData(qtText(language->id));
  }
}

void ViewMenu::popup(const QPoint& spot) {
  update();
  fillRecent();
  fillCodePages();
  mnuPopup_->popup(form_.parts().desk->ui.pScroll->mapToGlobal(spot));
}

void ViewMenu::update() {
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const CommandRow& row = commandTable()[i];
    entries_[i]->setEnabled(row.isOn(form_));
    if (row.otherText != nullptr) setText(*entries_[i], row);
    if (row.checkedWhen != nullptr) entries_[i]->setChecked(row.checkedWhen(form_));
  }
}

// Other windows may have opened some since.
void ViewMenu::fillRecent() {
  mnuRecent_->clear();
  for (const std::string& path : form_.parts().opening.recent())
    mnuRecent_->addAction(menuTextOf(path, mnuRecent_->fontMetrics()))
        ->setData(QByteArray::fromStdString(path));
  if (mnuRecent_->isEmpty())
    mnuRecent_->addAction(qtText(previewTexts().noRecentReports))->setEnabled(false);
}

// The code page at hand is ticked; one that is not offered stands first.
void ViewMenu::fillCodePages() {
  mnuCodePage_->clear();
  const VDoc* doc = form_.parts().pages.document();
  if (doc == nullptr) return;
  const int current = doc->Settings.Page.BaseCodePage;
  std::vector<int> codePages = offeredCodePages();
  if (std::find(codePages.begin(), codePages.end(), current) == codePages.end())
    codePages.insert(codePages.begin(), current);
  for (const int codePage : codePages) {
    QAction* entry = mnuCodePage_->addAction(qtText(codePageName(codePage)));
    entry->setData(codePage);
    entry->setCheckable(true);
    entry->setChecked(codePage == current);
  }
}

void ViewMenu::setText(QAction& entry, const CommandRow& row) const {
  const bool other = row.otherText != nullptr && row.otherTextWhen(form_);
  const QString key = row.keyText();
  const QString text = qtText(previewTexts().*(other ? row.otherText : row.text));
  entry.setText(key.isEmpty() ? text : text + '\t' + key);
}

void ViewMenu::retranslate() {
  const PreviewTexts& texts = previewTexts();
  for (std::size_t i = 0; i < entries_.size(); ++i) setText(*entries_[i], commandTable()[i]);
  mnuRecent_->setTitle(qtText(texts.recentReports));
  mnuZoom_->setTitle(qtText(texts.zoom));
  mnuLanguage_->setTitle(qtText(texts.language));
  mnuCodePage_->setTitle(qtText(texts.codePage));
  for (QAction* entry : mnuLanguage_->actions()) {
    const Language& language = languageOfEntry(entry);
    entry->setText(qtText(nameOf(language)));
    entry->setChecked(language.id == currentLanguage().id);
  }
}

}  // namespace qor
