// The dialog around the tabs.
#include "windows/settings/tfrm_sets.h"

#include <QPushButton>
#include <QScreen>
#include <QStyle>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "ui_tfrm_sets.h"
#include "window_model/set_choices.h"
#include "windows/settings/font_tab.h"
#include "windows/settings/page_tab.h"
#include "windows/settings/print_tab.h"
#include "windows/settings/printer_tab.h"
#include "windows/settings/sets_tab.h"
#include "windows/settings/tab_area.h"

namespace qor {
namespace {

constexpr int kFrame = 40;  // pixels that a window's title and frame may take

std::string_view nameOfColor(std::int32_t printColor, const SettingsTexts& texts) {
  switch (colorChoice(printColor)) {
    case 1: return texts.monochrome;
    case 3: return texts.colored;
    default: return texts.colorDefault;
  }
}

QWidget* lastWithFocus(const QWidget& window) {
  QWidget* last = window.previousInFocusChain();
  while (last->focusPolicy() == Qt::NoFocus) last = last->previousInFocusChain();
  return last;
}

}  // namespace

TfrmSets::TfrmSets(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::TfrmSets>()) {
  ui_->setupUi(this);
  addTabs();
  connectControls();
}

TfrmSets::~TfrmSets() = default;

void TfrmSets::addTabs() {
  const auto add = [this](QWidget* tab) {
    auto* area = new TabArea(tab);
    area->setObjectName(tab->objectName() + "Area");
    ui_->Pages_Sets->addTab(area, {});
  };
  add(printer_tab_ = new PrinterTab(draft_));
  add(print_tab_ = new PrintTab(draft_));
  add(font_tab_ = new FontTab(draft_));
  add(page_tab_ = new PageTab(draft_));
  add(sets_tab_ = new SetsTab(draft_));
  // The buttons below the tabs were made before them.
  for (QWidget* button : {ui_->cmdBringBack, ui_->cmdOk, ui_->cmdPrint, ui_->cmdCancel})
    setTabOrder(lastWithFocus(*this), button);
}

void TfrmSets::connectControls() {
  connect(ui_->cmdOk, &QPushButton::clicked, this, [this] { cmdOkClick(DialogResult::apply); });
  connect(ui_->cmdPrint, &QPushButton::clicked, this, [this] { cmdOkClick(DialogResult::print); });
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &TfrmSets::reject);
  connect(ui_->cmdBringBack, &QPushButton::clicked, this, &TfrmSets::bringBack);
  connect(printer_tab_, &PrinterTab::printerChosen, this, [this] { listed_.clear(); });
  connect(printer_tab_, &PrinterTab::printerShown, this, &TfrmSets::printerShown);
  connect(page_tab_, &PageTab::resetAsked, this, &TfrmSets::cmdPage_ResetClick);
  connect(sets_tab_, &SetsTab::setLoaded, this, &TfrmSets::setLoaded);
  connect(sets_tab_, &SetsTab::resetAsked, this, &TfrmSets::cmdSets_ResetClick);
}

SettingsAnswer TfrmSets::ask(VDoc& doc, PreviewKind view) {
  doc_ = &doc;
  if (!std::exchange(copied_, true)) draft_ = draftOf(doc);
  takeCodePage(doc.Settings.Page.BaseCodePage);
  FormShow(view);
  const auto result = static_cast<DialogResult>(exec());
  return {result, result == DialogResult::print && page_tab_->scalesToPaper()};
}

// Nobody who leaves the code page alone changes it: the window has a menu for it, too.
void TfrmSets::takeCodePage(std::int32_t codePage) {
  std::int32_t& chosen = draft_.set.Page.BaseCodePage;
  const std::int32_t before = std::exchange(code_page_, codePage);
  if (chosen == before) chosen = codePage;
}

void TfrmSets::FormShow(PreviewKind view) {
  choosePrinterOfRun(draft_.set);
  applyCaptions();
  print_tab_->setPageCount(doc_->PageCount);
  page_tab_->offerScale(view == kWideView);
  printer_tab_->FormShow();
  printer_tab_->PrinterShow();
  showPage();
  font_tab_->FontShow();
  sets_tab_->SetsShow();
  ui_->Pages_Sets->setCurrentIndex(0);
  fitScreen();
}

// Texts and lists may have grown since the tabs were measured.
void TfrmSets::fitScreen() {
  QTabWidget& tabs = *ui_->Pages_Sets;
  for (int i = 0; i < tabs.count(); ++i) static_cast<TabArea*>(tabs.widget(i))->measureAnew();
  tabs.updateGeometry();
  const QSize room = screen()->availableSize() - QSize(kFrame, kFrame);
  QSize wanted = size().expandedTo(sizeHint());
  if (wanted.height() > room.height())
    wanted.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  resize(wanted.boundedTo(room));
}

void TfrmSets::applyCaptions() {
  const SettingsTexts& texts = settingsTexts();
  setWindowTitle(qtText(texts.title));
  ui_->cmdOk->setToolTip(qtText(texts.applyHint));
  setCaptions(*ui_->Pages_Sets,
              {texts.printerTab, texts.printTab, texts.fontTab, texts.pageTab, texts.setsTab},
              {{ui_->cmdOk, texts.apply},
               {ui_->cmdPrint, texts.print},
               {ui_->cmdCancel, texts.cancel},
               {ui_->cmdBringBack, texts.bringBack}},
              {printer_tab_->captions(texts), print_tab_->captions(texts),
               font_tab_->captions(texts), page_tab_->captions(texts), sets_tab_->captions(texts)});
}

// Lists what the printer offers, as far as it has told, and shows what it brings along.
void TfrmSets::printerShown() {
  const std::string& shown = printer_tab_->shownPrinter();
  const bool known = !shown.empty() && printer_tab_->isKnown();
  const PrinterIs is = shown == listed_ ? PrinterIs::lookedAt : PrinterIs::chosen;
  const PrinterChoices choices =
      choicesOf(known ? shown : std::string(), is, settingsTexts().custom, draft_.set.Page);
  page_tab_->setPapers(choices.papers, choices.paper);
  print_tab_->setBins(choices.bins, choices.bin);
  if (known && is == PrinterIs::chosen) {
    listed_ = shown;
    if (!replaced_) replaced_ = choices.replaced;
    showPage();
  }
  tellReplaced();
  updateButtons();
}

void TfrmSets::showPage() {
  print_tab_->PrintShow();
  page_tab_->PageShow();
}

void TfrmSets::cmdPage_ResetClick() {
  printerShown();
  showPage();
}

void TfrmSets::setLoaded() {
  listed_.clear();
  replaced_.reset();
  printer_tab_->PrinterShow();
  showPage();
  font_tab_->FontShow();
}

// The usual page goes before what the usual printer brings along.
void TfrmSets::cmdSets_ResetClick() {
  resetPrinter(draft_.set);
  printer_tab_->PrinterShow();
  resetPageOptions(draft_.set.Page);
  draft_.set.Font.Reset();
  replaced_.reset();
  cmdPage_ResetClick();
  font_tab_->FontShow();
  sets_tab_->showSetText();
}

// Sizes and colours that a printer brings along are not what the user has chosen.
void TfrmSets::tellReplaced() {
  ui_->pReplaced->setVisible(replaced_.has_value());
  if (!replaced_) return;
  const SettingsTexts& texts = settingsTexts();
  const std::string before = std::string(texts.printersValues)
                                 .append(sizeText(replaced_->PaperWidth, replaced_->PaperHeight))
                                 .append(", ")
                                 .append(nameOfColor(replaced_->PrintColor, texts));
  ui_->lblReplaced->setText(qtText(before));
}

void TfrmSets::bringBack() {
  setPrinterValues(draft_.set.Page, *replaced_);
  replaced_.reset();
  tellReplaced();
  showPage();
}

// What a printer can do must be known before its settings can be applied.
void TfrmSets::updateButtons() {
  const bool known = printer_tab_->isKnown();
  ui_->cmdOk->setEnabled(known);
  ui_->cmdPrint->setEnabled(known && !AppOptions.TestMode);
  ui_->lblWaits->setText(known ? QString() : qtText(settingsTexts().askingPrinter));
}

void TfrmSets::cmdOkClick(DialogResult result) {
  applyDraft(draft_, printer_tab_->shownPrinter(), *doc_);
  code_page_ = draft_.set.Page.BaseCodePage;
  replaced_.reset();
  done(static_cast<int>(result));
}

void TfrmSets::reject() {
  done(static_cast<int>(DialogResult::cancel));
}

}  // namespace qor
