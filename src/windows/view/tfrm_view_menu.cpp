// Buttons, popup menu and their captions.
#include <QActionGroup>
#include <QComboBox>
#include <QListView>
#include <QToolButton>
#include <algorithm>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "ui_tfrm_view.h"
#include "window_model/preview_texts.h"
#include "windows/tqor_image_form.h"
#include "windows/view/note_bar.h"
#include "windows/view/page_list_model.h"
#include "windows/view/page_scroll.h"
#include "windows/view/size_line.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/view_menu.h"
#include "windows/view/vpage.h"

namespace qor {
namespace {

using Form = Ui::TfrmView;

// One command: its entry of the menu, its button where it has one, its text and its key.
struct Command {
  QAction* ViewMenu::*entry;
  QToolButton* Form::*button;
  ImageIndex image;
  std::string_view PreviewTexts::*text;
  const char* key;
};

constexpr QToolButton* Form::*kNoButton = nullptr;

constexpr Command kCommands[] = {
    {&ViewMenu::mnuFirst, &Form::cmdView_First, ImageIndex::first, &PreviewTexts::firstPage,
     "Ctrl+Home"},
    {&ViewMenu::mnuPrev, &Form::cmdView_Prev, ImageIndex::previous, &PreviewTexts::previousPage,
     "PgUp"},
    {&ViewMenu::mnuNext, &Form::cmdView_Next, ImageIndex::next, &PreviewTexts::nextPage, "PgDown"},
    {&ViewMenu::mnuLast, &Form::cmdView_Last, ImageIndex::last, &PreviewTexts::lastPage,
     "Ctrl+End"},
    {&ViewMenu::mnuZoomPlus, &Form::cmdView_ZoomIn, ImageIndex::zoomIn, &PreviewTexts::zoomIn,
     "Ctrl++"},
    {&ViewMenu::mnuZoomMinus, &Form::cmdView_ZoomOut, ImageIndex::zoomOut, &PreviewTexts::zoomOut,
     "Ctrl+-"},
    {&ViewMenu::mnuActualSize, kNoButton, ImageIndex::actualSize, &PreviewTexts::actualSize,
     "Ctrl+0"},
    {&ViewMenu::mnuFitWidth, kNoButton, ImageIndex::fitWidth, &PreviewTexts::fitWidth, "Ctrl+1"},
    {&ViewMenu::mnuFitPage, kNoButton, ImageIndex::fitPage, &PreviewTexts::fitPage, "Ctrl+2"},
    {&ViewMenu::mnuSinglePage, &Form::cmdView_SinglePage, ImageIndex::singlePage,
     &PreviewTexts::singlePage, ""},
    {&ViewMenu::mnuMultiPage, &Form::cmdView_MultiPage, ImageIndex::multiPage,
     &PreviewTexts::multiPage, ""},
    {&ViewMenu::mnuNormalView, &Form::cmdView_NormalView, ImageIndex::normalView,
     &PreviewTexts::normalView, ""},
    {&ViewMenu::mnuWideView, &Form::cmdView_WideView, ImageIndex::wideView, &PreviewTexts::wideView,
     ""},
    {&ViewMenu::mnuListView, kNoButton, ImageIndex::pageList, &PreviewTexts::pageList, ""},
    {&ViewMenu::mnuUnprintable, kNoButton, ImageIndex::margins, &PreviewTexts::unprintable, ""},
    {&ViewMenu::mnuFullScreen, kNoButton, ImageIndex::fullScreen, &PreviewTexts::fullWindow, "F11"},
    {&ViewMenu::mnuRowLine, kNoButton, ImageIndex::alignmentLine, &PreviewTexts::showRowLine, ""},
    {&ViewMenu::mnuShapeLine, kNoButton, ImageIndex::alignmentLine, &PreviewTexts::showShapeLine,
     ""},
    {&ViewMenu::mnuProperties, kNoButton, ImageIndex::properties, &PreviewTexts::lineProperties,
     ""},
    {&ViewMenu::mnuSettings, &Form::cmdView_SetPrinter, ImageIndex::print, &PreviewTexts::settings,
     "F4"},
    {&ViewMenu::mnuMail, &Form::cmdView_Mail, ImageIndex::mail, &PreviewTexts::mail, "F5"},
    {&ViewMenu::mnuConvert, &Form::cmdView_Convert, ImageIndex::convert, &PreviewTexts::convert,
     "F6"},
    {&ViewMenu::mnuClose, &Form::cmdView_Esc, ImageIndex::close, &PreviewTexts::close, "Esc"}};

const Command& commandOf(QAction* ViewMenu::*entry) {
  return *std::find_if(std::begin(kCommands), std::end(kCommands),
                       [entry](const Command& row) { return row.entry == entry; });
}

// Behind these entries the menu has a line.
constexpr QAction* ViewMenu::*kGroupEnds[] = {&ViewMenu::mnuLast,       &ViewMenu::mnuFitPage,
                                              &ViewMenu::mnuWideView,   &ViewMenu::mnuFullScreen,
                                              &ViewMenu::mnuProperties, &ViewMenu::mnuConvert};

constexpr QAction* ViewMenu::*kCheckable[] = {&ViewMenu::mnuSinglePage, &ViewMenu::mnuMultiPage,
                                              &ViewMenu::mnuNormalView, &ViewMenu::mnuWideView,
                                              &ViewMenu::mnuListView,   &ViewMenu::mnuUnprintable,
                                              &ViewMenu::mnuFullScreen};

constexpr int kZoomLetters = 12;  // as in "AutoW (100%)"

// A text with its key, as tool tips show it and as menus do.
QString hint(const QString& text, const char* key) {
  return *key == '\0' ? text : QString("%1 (%2)").arg(text, key);
}
QString entryText(const QString& text, const char* key) {
  return *key == '\0' ? text : text + '\t' + key;
}

void addZoomMenu(ViewMenu& menu) {
  menu.mnuZoom = menu.mnuPopup.addMenu(QString());
  menu.mnuZoom->setObjectName("mnuZoom");
  for (std::size_t tag = 0; tag < kZoomMenu.size(); ++tag)
    menu.mnuZoom->addAction(qtText(kZoomMenu[tag]))->setData(static_cast<int>(tag));
}

// One of them is chosen at any time.
void groupEntries(QObject* owner, std::initializer_list<QAction*> entries) {
  auto* group = new QActionGroup(owner);
  for (QAction* entry : entries) group->addAction(entry);
}

void addLanguageMenu(ViewMenu& menu, QObject* owner) {
  menu.mnuPopup.addSeparator();
  menu.mnuCodePage = menu.mnuPopup.addMenu(QString());
  menu.mnuCodePage->setObjectName("mnuCodePage");
  menu.mnuLanguage = menu.mnuPopup.addMenu(QString());
  menu.mnuLanguage->setObjectName("mnuLanguage");
  menu.mnuLanguage->setIcon(TQorImageForm::ImageMenuList(ImageIndex::language, IconPlace::menu));
  auto* group = new QActionGroup(owner);
  for (const Language* language : languages()) {
    QAction* entry = group->addAction(menu.mnuLanguage->addAction(QString()));
    entry->setCheckable(true);
    entry->setData(qtText(language->id));
  }
}

const Language& languageOfEntry(const QAction* entry) {
  return languageOf(entry->data().toString().toStdString());
}

void addEntry(ViewMenu& menu, const Command& command) {
  QAction* entry = menu.mnuPopup.addAction(QString());
  menu.*command.entry = entry;
  entry->setIcon(TQorImageForm::ImageMenuList(command.image, IconPlace::menu));
  const auto is = [&command](QAction* ViewMenu::*member) { return command.entry == member; };
  entry->setCheckable(std::any_of(std::begin(kCheckable), std::end(kCheckable), is));
  // A check mark needs the place of the image.
  entry->setIconVisibleInMenu(!entry->isCheckable());
  if (command.entry == &ViewMenu::mnuZoomMinus) addZoomMenu(menu);
  if (std::any_of(std::begin(kGroupEnds), std::end(kGroupEnds), is)) menu.mnuPopup.addSeparator();
}

}  // namespace

void TfrmView::createMenu() {
  menu_ = std::make_unique<ViewMenu>(this);
  ViewMenu& menu = *menu_;
  menu.mnuPopup.setObjectName("mnuPopup");
  for (const Command& command : kCommands) {
    if (command.entry == &ViewMenu::mnuClose) addLanguageMenu(menu, this);
    addEntry(menu, command);
  }
  groupEntries(this, {menu.mnuSinglePage, menu.mnuMultiPage});
  groupEntries(this, {menu.mnuNormalView, menu.mnuWideView});
  menu.mnuRowLine->setVisible(false);
  connect(menu.mnuZoom, &QMenu::triggered, this,
          [this](QAction* entry) { mnuZoomListClick(entry->data().toInt()); });
  connect(menu.mnuCodePage, &QMenu::triggered, this,
          [this](QAction* entry) { mnuCodePageClick(entry->data().toInt()); });
  connect(menu.mnuLanguage, &QMenu::triggered, this,
          [this](QAction* entry) { chooseLanguage(languageOfEntry(entry)); });
}

void TfrmView::connectTools() {
  for (const ZoomEntry& entry : kZoomList) ui_->cmbZoom->addItem(qtText(entry.text));
  ui_->cmbZoom->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  ui_->cmbZoom->setMinimumContentsLength(kZoomLetters);
  const auto onCommand = [this](QAction* ViewMenu::*entry, auto handler) {
    connect(menu_.get()->*entry, &QAction::triggered, this, handler);
    const Command& command = commandOf(entry);
    if (command.button == kNoButton) return;
    QToolButton* button = ui_.get()->*command.button;
    button->setIcon(TQorImageForm::ImageMenuList(command.image, IconPlace::button));
    button->setIconSize({TQorImageForm::kImageSize, TQorImageForm::kImageSize});
    connect(button, &QToolButton::clicked, this, handler);
  };
  onCommand(&ViewMenu::mnuClose, [this] { close(); });
  const auto onMove = [&](QAction* ViewMenu::*entry, PageMove move) {
    (menu_.get()->*entry)->setData(static_cast<int>(move));
    onCommand(entry, [this, move] { cmdView_PageMoveTo(move); });
  };
  onMove(&ViewMenu::mnuFirst, PageMove::first);
  onMove(&ViewMenu::mnuPrev, PageMove::previous);
  onMove(&ViewMenu::mnuNext, PageMove::next);
  onMove(&ViewMenu::mnuLast, PageMove::last);
  onCommand(&ViewMenu::mnuZoomPlus, [this] { cmdView_ZoomInClick(); });
  onCommand(&ViewMenu::mnuZoomMinus, [this] { cmdView_ZoomOutClick(); });
  onCommand(&ViewMenu::mnuActualSize, [this] { mnuActualSizeClick(); });
  onCommand(&ViewMenu::mnuFitWidth, [this] { mnuFitWidthClick(); });
  onCommand(&ViewMenu::mnuFitPage, [this] { mnuFitPageClick(); });
  onCommand(&ViewMenu::mnuSinglePage, [this] { rbMultiPageViewClick(false); });
  onCommand(&ViewMenu::mnuMultiPage, [this] { rbMultiPageViewClick(true); });
  onCommand(&ViewMenu::mnuNormalView, [this] { cmdView_SetPreviewTypeClick(kNormalView); });
  onCommand(&ViewMenu::mnuWideView, [this] { cmdView_SetPreviewTypeClick(kWideView); });
  onCommand(&ViewMenu::mnuListView, [this] { mnuListViewClick(); });
  onCommand(&ViewMenu::mnuUnprintable, [this] { mnuUnprintableClick(); });
  onCommand(&ViewMenu::mnuFullScreen, [this] { mnuFullScreenClick(); });
  onCommand(&ViewMenu::mnuSettings, [this] { cmdSettings_Click(); });
  onCommand(&ViewMenu::mnuMail, [this] { cmdView_MailClick(); });
  onCommand(&ViewMenu::mnuConvert, [this] { cmdView_ConvertClick(); });
  onCommand(&ViewMenu::mnuShapeLine, [this] { commands_.shapeLine(); });
  onCommand(&ViewMenu::mnuProperties, [this] { commands_.lineProperties(); });
  connect(ui_->cmbZoom, &QComboBox::activated, this, [this] { cmbZoomChange(); });
  enableCommands();
}

// Commands of forms that nobody offers are there and off.
void TfrmView::enableCommands() {
  const auto enable = [this](QAction* ViewMenu::*entry, bool offered) {
    (menu_.get()->*entry)->setEnabled(offered);
    if (QToolButton* Form::*button = commandOf(entry).button; button != kNoButton)
      (ui_.get()->*button)->setEnabled(offered);
  };
  enable(&ViewMenu::mnuSettings, static_cast<bool>(commands_.settings));
  enable(&ViewMenu::mnuMail, static_cast<bool>(commands_.mail));
  enable(&ViewMenu::mnuConvert, static_cast<bool>(commands_.convert));
  enable(&ViewMenu::mnuShapeLine, static_cast<bool>(commands_.shapeLine));
  enable(&ViewMenu::mnuProperties, static_cast<bool>(commands_.lineProperties));
}

void TfrmView::showPopup(const QPoint& place) {
  updateMenu();
  menu_->mnuPopup.popup(ui_->pScroll->mapToGlobal(place));
}

// The entries as the window stands.
void TfrmView::updateMenu() {
  const ViewMenu& menu = *menu_;
  fillCodePageMenu();
  menu.mnuSinglePage->setChecked(!state_.MultipageView);
  menu.mnuMultiPage->setChecked(state_.MultipageView);
  menu.mnuNormalView->setChecked(state_.PreviewType == kNormalView);
  menu.mnuWideView->setChecked(state_.PreviewType == kWideView);
  menu.mnuListView->setChecked(state_.ListView);
  menu.mnuUnprintable->setChecked(state_.ShowUnprintable);
  menu.mnuFullScreen->setChecked(state_.FlagFullWindow);
}

void TfrmView::applyCaptions() {
  const PreviewTexts& texts = previewTexts();
  const InterfaceTexts& names = interfaceTexts();
  const std::string& caption = AppOptions.WindowCaption;
  setWindowTitle(qtText(caption.empty() ? names.PreviewTitle : std::string_view(caption)));
  for (const Command& command : kCommands) {
    const QString text = qtText(texts.*command.text);
    (menu_.get()->*command.entry)->setText(entryText(text, command.key));
    if (command.button == kNoButton) continue;
    (ui_.get()->*command.button)->setToolTip(hint(text, command.key));
    (ui_.get()->*command.button)->setAccessibleName(text);
  }
  menu_->mnuZoom->setTitle(qtText(texts.zoom));
  menu_->mnuLanguage->setTitle(qtText(texts.language));
  menu_->mnuCodePage->setTitle(qtText(texts.codePage));
  for (QAction* entry : menu_->mnuLanguage->actions()) {
    const Language& language = languageOfEntry(entry);
    entry->setText(qtText(nameOf(language)));
    entry->setChecked(language.id == currentLanguage().id);
  }
  nameControls();
  notes_->setCloseText(qtText(texts.close));
  pageList_->retranslate();
}

void TfrmView::nameControls() {
  const PreviewTexts& texts = previewTexts();
  const auto name = [](QWidget* control, std::string_view text) {
    control->setAccessibleName(qtText(text));
    control->setToolTip(qtText(text));
  };
  name(ui_->cmbZoom, texts.zoom);
  name(ui_->lblPageCurrent, texts.pageNumber);
  name(ui_->txtPageCurrentEdit, texts.pageNumber);
  name(ui_->lblPageTotal, texts.pageCount);
  name(ui_->txtZoom, texts.scale);
  ui_->lstPages->setAccessibleName(qtText(texts.pageList));
  ui_->pScroll->setAccessibleName(qtText(texts.pageArea));
  ui_->pTools->setAccessibleName(qtText(texts.reportMenu));
}

void TfrmView::chooseLanguage(const Language& language) {
  // The report stays in the code page that it was opened with.
  const int documentCodePage = AppOptions.DocCodePage;
  selectLanguage(language);
  AppOptions.DocCodePage = documentCodePage;
  applyCaptions();
  // ESC E brings back the character set of the interface.
  if (doc_ != nullptr) doc_->ForgetFonts();
  ShowPage();
}

}  // namespace qor
