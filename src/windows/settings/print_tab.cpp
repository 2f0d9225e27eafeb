// Print options.
#include "windows/settings/print_tab.h"

#include "base/errors.h"
#include "document/page_list.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "ui_print_tab.h"
#include "window_model/set_choices.h"
#include "window_model/set_draft.h"
#include "windows/ruled_edit.h"
#include "windows/settings/item_list.h"
#include "windows/settings/tag_group.h"

namespace qor {
namespace {

constexpr int kColored = 3;
constexpr int kArrowsAtRest = 1;

// What a list of pages comes to; false where it can't be read.
bool readPages(const std::string& list, int pages, QString& text) {
  const SettingsTexts& texts = settingsTexts();
  try {
    const PageList chosen(list);
    const int count = chosen.countOf(pages);
    text = chosen.isEmpty() ? qtText(texts.noPageChosen)
           : count == 1     ? qtText(texts.onePage)
                            : qtText(texts.manyPages).replace('%', QString::number(count));
    return true;
  } catch (const ConversionError&) {
    text = qtText(texts.pagesNotRead);
    return false;
  }
}

}  // namespace

PrintTab::PrintTab(SetDraft& draft) : draft_(draft), ui_(std::make_unique<Ui::tabPrint>()) {
  ui_->setupUi(this);
  VSetPage& page = draft_.set.Page;
  copies_ = new RuledEdit(
      *ui_->txtPrint_Copies, copiesRule(),
      [&page](const CheckedText& text) { page.NumOfCopies = static_cast<int>(text.value); },
      [&page] { return QString::number(page.NumOfCopies); });
  new RuledEdit(*ui_->txtPrint_Pages, pagesRule(), [this](const CheckedText& text) {
    draft_.set.Page.PagesForPrint = text.text;
    tellPages();
  });
  pages_ = new TagGroup(this,
                        {{ui_->chkPrint_Pages_All, kPrintAllPages},
                         {ui_->chkPrint_Pages_Current, kPrintCurrentPage},
                         {ui_->chkPrint_Pages_Numbers, kPrintListedPages}},
                        [this](int tag) {
                          draft_.set.Page.PrintPagesSet = tag;
                          PrintPagesShow();
                          if (tag == kPrintListedPages) ui_->txtPrint_Pages->setFocus();
                        });
  qualities_ = new TagGroup(this,
                            {{ui_->chkQuality_Default, 0},
                             {ui_->chkQuality_Draft, 1},
                             {ui_->chkQuality_Low, 2},
                             {ui_->chkQuality_Medium, 3},
                             {ui_->chkQuality_High, 4}},
                            [&page](int tag) { page.PrintQuality = tag; });
  colors_ = new TagGroup(
      this,
      {{ui_->chkColor_Default, 0}, {ui_->chkColor_Mono, 1}, {ui_->chkColor_Colored, kColored}},
      [&page](int tag) { page.PrintColor = tag; });
  orders_ = new TagGroup(this, {{ui_->chkPrintOrder_Normal, 0}, {ui_->chkPrintOrder_Reverse, 1}},
                         [&page](int tag) { page.ReverseOrder = tag != 0; });
  connectControls();
}

PrintTab::~PrintTab() = default;

void PrintTab::connectControls() {
  VSetPage& page = draft_.set.Page;
  connect(ui_->cbCollate, &QCheckBox::clicked, this,
          [&page](bool checked) { page.SortByCopies = checked; });
  QScrollBar* arrows = ui_->cmdPrint_Quantity_UpDown;
  arrows->setValue(kArrowsAtRest);
  arrows->setFixedHeight(ui_->txtPrint_Copies->sizeHint().height());
  connect(arrows, &QScrollBar::valueChanged, this, [this, arrows](int value) {
    if (value == kArrowsAtRest) return;
    copies_->stepBy(kArrowsAtRest - value);
    arrows->setValue(kArrowsAtRest);
  });
  connect(ui_->lstPrint_PaperSource, &QComboBox::activated, this, [this](int place) {
    draft_.set.Page.PaperSource = numberOfItem(itemAt(*ui_->lstPrint_PaperSource, place));
  });
  connect(ui_->cmdPrint_Reset, &QPushButton::clicked, this, [this] {
    resetPrintOptions(draft_.set.Page);
    PrintShow();
  });
}

Captions PrintTab::captions(const SettingsTexts& texts) const {
  ui_->cmdPrint_Reset->setToolTip(qtText(texts.defaultsHint));
  ui_->lblNumbersHint->setText(qtText(texts.numbersHint));
  ui_->lblNumbersExample->setText(qtText(texts.numbersExample));
  ui_->txtPrint_Pages->setAccessibleName(qtText(texts.pageNumbers));
  ui_->cmdPrint_Quantity_UpDown->setAccessibleName(qtText(texts.quantityOfCopies));
  return {{ui_->cmdPrint_Reset, texts.defaults},
          {ui_->grpPages, texts.pages},
          {ui_->lblQuantity, texts.quantityOfCopies},
          {ui_->cbCollate, texts.collate},
          {ui_->grpPrintOrder, texts.printOrder},
          {ui_->grpQuality, texts.quality},
          {ui_->grpColor, texts.printColor},
          {ui_->lblPaperSource, texts.paperSource},
          {ui_->chkPrint_Pages_All, texts.allPages},
          {ui_->chkPrint_Pages_Current, texts.currentPage},
          {ui_->chkPrint_Pages_Numbers, texts.pageNumbers},
          {ui_->grpCopies, texts.copies},
          {ui_->chkPrintOrder_Normal, texts.frontToBack},
          {ui_->chkPrintOrder_Reverse, texts.backToFront},
          {ui_->chkQuality_Default, texts.qualityDefault},
          {ui_->chkQuality_Draft, texts.draft},
          {ui_->chkQuality_Low, texts.low},
          {ui_->chkQuality_Medium, texts.medium},
          {ui_->chkQuality_High, texts.high},
          {ui_->chkColor_Default, texts.colorDefault},
          {ui_->chkColor_Mono, texts.monochrome},
          {ui_->chkColor_Colored, texts.colored}};
}

void PrintTab::setBins(const ItemList& bins, int selected) {
  fillItems(*ui_->lstPrint_PaperSource, bins, selected, {kFormSource});
}

void PrintTab::PrintShow() {
  const VSetPage& page = draft_.set.Page;
  pages_->check(page.PrintPagesSet);
  ui_->txtPrint_Pages->setText(qtText(page.PagesForPrint));
  ui_->txtPrint_Copies->setText(QString::number(page.NumOfCopies));
  ui_->cbCollate->setChecked(page.SortByCopies);
  qualities_->check(page.PrintQuality);
  colors_->check(colorChoice(page.PrintColor));
  orders_->check(page.ReverseOrder ? 1 : 0);
  PrintPagesShow();
}

void PrintTab::PrintPagesShow() {
  ui_->txtPrint_Pages->setEnabled(draft_.set.Page.PrintPagesSet == kPrintListedPages);
  tellPages();
}

void PrintTab::tellPages() {
  const VSetPage& page = draft_.set.Page;
  QString text;
  const bool listed = page.PrintPagesSet == kPrintListedPages;
  const bool readable = !listed || readPages(page.PagesForPrint, page_count_, text);
  ui_->lblPagesCount->setText(text);
  ui_->txtPrint_Pages->setAccessibleDescription(text);
  ui_->txtPrint_Pages->setStyleSheet(readable ? "" : "QLineEdit { border: 2px solid #c0392b }");
}

}  // namespace qor
