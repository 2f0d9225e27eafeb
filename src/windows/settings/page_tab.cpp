// The sheet.
#include "windows/settings/page_tab.h"

#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/svg_icon.h"
#include "platform/system/locale.h"
#include "settings/number_text.h"
#include "ui_page_tab.h"
#include "window_model/set_choices.h"
#include "window_model/set_draft.h"
#include "windows/ruled_edit.h"
#include "windows/settings/item_list.h"
#include "windows/settings/tag_group.h"

namespace qor {
namespace {

constexpr int kOwnSize = 0;   // its place among the papers
constexpr int kPicture = 72;  // pixels, across and down

bool hasOwnSize(const VSetPage& page) {
  return page.PaperSize == kUserPaper || page.PaperSize == 0;
}

}  // namespace

PageTab::PageTab(SetDraft& draft) : draft_(draft), ui_(std::make_unique<Ui::tabPage>()) {
  ui_->setupUi(this);
  orientations_ = new TagGroup(this,
                               {{ui_->chkOrientation_Auto, 0},
                                {ui_->chkOrientation_Portrait, 1},
                                {ui_->chkOrientation_Landscape, kLandscape}},
                               [this](int tag) { pPageOrientationClick(tag); });
  connectEdits();
  connectChoices();
}

PageTab::~PageTab() = default;

void PageTab::connectEdits() {
  VSetPage& page = draft_.set.Page;
  connectMargin(*ui_->txtLeft, page.MarginLeft);
  connectMargin(*ui_->txtTop, page.MarginTop);
  connectSide(*ui_->txtPageWidth, page.PaperWidth);
  connectSide(*ui_->txtPageHeight, page.PaperHeight);
}

void PageTab::connectMargin(QLineEdit& edit, std::int32_t& margin) {
  new RuledEdit(
      edit, marginRule(),
      [&margin](const CheckedText& text) { margin = static_cast<std::int32_t>(text.value); },
      [&margin] { return QString::number(margin); });
}

void PageTab::connectSide(QLineEdit& edit, double& side) {
  new RuledEdit(
      edit, pageSizeRule(decimalSeparator()),
      [&side](const CheckedText& text) { side = text.value; },
      [&side] { return qtText(FloatToStr(side)); });
}

void PageTab::connectChoices() {
  connect(ui_->lstPageSize, &QComboBox::activated, this, &PageTab::lstPageSizeChange);
  connect(ui_->chbscaleflag, &QCheckBox::clicked, this,
          [this](bool checked) { draft_.ScaleFlag = checked; });
  connect(ui_->lstBaseCodePage, &QComboBox::activated, this,
          [this](int entry) { draft_.set.Page.BaseCodePage = codePageOfEntry(entry); });
  connect(ui_->cmdPage_Reset, &QPushButton::clicked, this, [this] {
    resetPageOptions(draft_.set.Page);
    emit resetAsked();
  });
}

Captions PageTab::captions(const SettingsTexts& texts) const {
  listCodePages();
  ui_->cmdPage_Reset->setToolTip(qtText(texts.defaultsHint));
  ui_->lstBaseCodePage->setAccessibleName(qtText(texts.baseCodePage));
  ui_->pPageOrientation->setTitle(qtText(texts.orientation));
  ui_->grpMargins->setTitle(qtText(texts.margins));
  ui_->grpPageSize->setTitle(qtText(texts.pageSize));
  return {{ui_->cmdPage_Reset, texts.defaults},
          {ui_->chkOrientation_Auto, texts.autoDetect},
          {ui_->chkOrientation_Portrait, texts.portrait},
          {ui_->chkOrientation_Landscape, texts.landscape},
          {ui_->lblLeft, texts.leftMargin},
          {ui_->lblTop, texts.topMargin},
          {ui_->lblPageFormat, texts.format},
          {ui_->lblPageWidth, texts.pageWidth},
          {ui_->lblPageHeight, texts.pageHeight},
          {ui_->grpBaseCodePage, texts.baseCodePage},
          {ui_->chbscaleflag, texts.scaleToPaper}};
}

void PageTab::listCodePages() const {
  ui_->lstBaseCodePage->clear();
  for (const std::string_view text : settingsTexts().codePages)
    ui_->lstBaseCodePage->addItem(qtText(text));
}

void PageTab::setPapers(const ItemList& papers, int selected) {
  fillItems(*ui_->lstPageSize, papers, selected, {1, 9});
  showLimits();
}

void PageTab::offerScale(bool offered) {
  ui_->chbscaleflag->setEnabled(offered);
}

bool PageTab::scalesToPaper() const {
  return ui_->chbscaleflag->isEnabled() && ui_->chbscaleflag->isChecked();
}

void PageTab::PageShow() {
  const VSetPage& page = draft_.set.Page;
  ui_->txtLeft->setText(QString::number(page.MarginLeft));
  ui_->txtTop->setText(QString::number(page.MarginTop));
  ui_->chbscaleflag->setChecked(draft_.ScaleFlag);
  ui_->lstBaseCodePage->setCurrentIndex(entryOfCodePage(page.BaseCodePage));
  showOrientation();
  showSides();
}

void PageTab::showOrientation() {
  const VSetPage& page = draft_.set.Page;
  const int way = page.landscape() ? kLandscape : page.Orientation;
  orientations_->check(way);
  const QIcon picture = svgIcon(QString(":/icons/orient_%1.svg").arg(way), IconPlace::button);
  ui_->lblOrientation->setPixmap(picture.pixmap({kPicture, kPicture}, devicePixelRatioF()));
}

void PageTab::showSides() {
  const VSetPage& page = draft_.set.Page;
  ui_->txtPageWidth->setText(qtText(FloatToStr(page.PaperWidth)));
  ui_->txtPageHeight->setText(qtText(FloatToStr(page.PaperHeight)));
  ui_->txtPageWidth->setEnabled(hasOwnSize(page));
  ui_->txtPageHeight->setEnabled(hasOwnSize(page));
}

void PageTab::showLimits() {
  const auto& [smallest, largest] = std::pair(draft_.set.Page.MinExtent, draft_.set.Page.MaxExtent);
  const bool limited = largest.Width != 0 || largest.Height != 0;
  ui_->lblWidthMinMax->setText(limited ? qtText(limitsText(smallest.Width, largest.Width)) : "");
  ui_->lblHeightMinMax->setText(limited ? qtText(limitsText(smallest.Height, largest.Height)) : "");
}

void PageTab::lstPageSizeChange(int place) {
  VSetPage& page = draft_.set.Page;
  const std::string item = itemAt(*ui_->lstPageSize, place);
  page.PaperSize = place == kOwnSize ? kUserPaper : numberOfItem(item);
  if (const auto sides = sidesOfItem(item, page.Orientation); sides && place != kOwnSize) {
    page.PaperWidth = ParseDoubleAnyLocale(sides->width);
    page.PaperHeight = ParseDoubleAnyLocale(sides->height);
  }
  showSides();
}

void PageTab::pPageOrientationClick(int orientation) {
  draft_.set.Page.Orientation = orientation;
  turnSheet(draft_.set.Page);
  showOrientation();
  showSides();
}

}  // namespace qor
