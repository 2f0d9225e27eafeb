// The base font.
#include "windows/settings/font_tab.h"

#include <QItemSelectionModel>
#include <algorithm>

#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "platform/system/locale.h"
#include "settings/number_text.h"
#include "settings/printer_lists.h"
#include "ui_font_tab.h"
#include "window_model/set_choices.h"
#include "window_model/set_draft.h"
#include "windows/ruled_edit.h"
#include "windows/settings/font_list.h"

namespace qor {
namespace {

QString sizeShown(double value) {
  return qtText(FloatToStr(value));
}

QString shownIfAny(double value) {
  return value == 0.0 ? QString() : sizeShown(value);
}

}  // namespace

FontTab::FontTab(SetDraft& draft) : draft_(draft), ui_(std::make_unique<Ui::tabFont>()) {
  ui_->setupUi(this);
  ui_->lstFonts->setModel(&fonts_);
  ui_->lstFonts->setItemDelegate(new FontListDelegate(*ui_->lstFonts));
  for (const CharsetEntry& entry : charsetEntries())
    ui_->lstFontCharSet->addItem(qtText(entry.text));
  connectEdits();
  connectChoices();
}

FontTab::~FontTab() = default;

void FontTab::connectEdits() {
  FontState& font = draft_.set.Font;
  const char mark = decimalSeparator();
  connectEdit(*ui_->txtFontHeight, fontHeightRule(mark), font.Height, sizeShown);
  connectEdit(*ui_->txtFontWidth, fontWidthRule(mark), font.Width, shownIfAny);
  connectEdit(*ui_->txtFontSpace, fontSpaceRule(mark), font.CharSpacing, shownIfAny);
}

void FontTab::connectEdit(QLineEdit& edit, EditRule rule, double& value, QString (*shown)(double)) {
  const auto changed = [this, &value](const CheckedText& text) {
    value = text.value;
    RefreshFontExample();
  };
  new RuledEdit(edit, std::move(rule), changed, [&value, shown] { return shown(value); });
}

void FontTab::connectChoices() {
  LogFont& face = draft_.set.Font.LogFont;
  const auto connectFlag = [this](QCheckBox* box, const std::function<void(bool)>& set) {
    connect(box, &QCheckBox::clicked, this, [this, set](bool checked) {
      set(checked);
      RefreshFontExample();
    });
  };
  connectFlag(ui_->chkFontBold,
              [&face](bool bold) { face.Weight = bold ? kBoldWeight : kPlainWeight; });
  connectFlag(ui_->chkFontItalic, [&face](bool italic) { face.Italic = italic; });
  connectFlag(ui_->chkFontUnderline, [&face](bool underline) { face.Underline = underline; });
  connectFlag(ui_->chkFontStrikeOut, [&face](bool strikeOut) { face.StrikeOut = strikeOut; });
  // A list that gets the focus makes a row the current one, but selects none.
  connect(ui_->lstFonts->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &FontTab::lstFontsClick);
  connect(ui_->lstFontCharSet, &QComboBox::activated, this, [this, &face](int entry) {
    face.CharSet = charsetEntries()[static_cast<std::size_t>(entry)].charset;
    listFonts();
    RefreshFontExample();
  });
  connect(ui_->pFontColor, &VDropDownPalette::OnColorChanged, this, [this](Color color) {
    draft_.set.Font.Color = color;
    RefreshFontExample();
  });
  connect(ui_->cmdFont_Reset, &QPushButton::clicked, this, [this] {
    draft_.set.Font.Reset();
    FontShow();
  });
}

Captions FontTab::captions(const SettingsTexts& texts) const {
  ui_->cmdFont_Reset->setToolTip(qtText(texts.defaultsHint));
  ui_->pFontColor->setToolTip(qtText(texts.select));
  ui_->pFontColor->setAccessibleName(qtText(texts.fontColor));
  ui_->pFontExample->setAccessibleName(qtText(texts.fontExample));
  ui_->grpFontSize->setTitle(qtText(texts.fontSize));
  ui_->grpFontStyle->setTitle(qtText(texts.style));
  ui_->grpFontExample->setTitle(qtText(texts.fontExample));
  return {{ui_->cmdFont_Reset, texts.defaults},     {ui_->lblFontList, texts.fontList},
          {ui_->lblFontHeight, texts.fontHeight},   {ui_->lblFontWidth, texts.fontWidth},
          {ui_->lblFontSpace, texts.fontSpace},     {ui_->chkFontBold, texts.bold},
          {ui_->chkFontUnderline, texts.underline}, {ui_->chkFontItalic, texts.italic},
          {ui_->chkFontStrikeOut, texts.strikeOut}, {ui_->lblFontColor, texts.fontColor},
          {ui_->lblFontCharSet, texts.characterSet}};
}

void FontTab::FontShow() {
  const FontState& font = draft_.set.Font;
  const LogFont& face = font.LogFont;
  ui_->txtFontHeight->setText(sizeShown(font.Height));
  ui_->txtFontWidth->setText(shownIfAny(font.Width));
  ui_->txtFontSpace->setText(shownIfAny(font.CharSpacing));
  ui_->chkFontBold->setChecked(face.Weight >= kBoldWeight);
  ui_->chkFontItalic->setChecked(face.Italic != 0);
  ui_->chkFontUnderline->setChecked(face.Underline != 0);
  ui_->chkFontStrikeOut->setChecked(face.StrikeOut != 0);
  ui_->lstFontCharSet->setCurrentIndex(entryOfCharset(face.CharSet));
  ui_->pFontColor->setColor(font.Color);
  listFonts();
  RefreshFontExample();
}

void FontTab::listFonts() {
  ItemList names;
  ListPrinterFonts(names, draft_.set.Font.LogFont.CharSet);
  QStringList rows;
  for (const std::string& name : names) rows.append(qtText(name));
  if (rows != fonts_.stringList()) fonts_.setStringList(rows);
  selectFace();
}

// A record holds the first 31 bytes of a name.
void FontTab::selectFace() {
  const LogFont& wanted = draft_.set.Font.LogFont;
  const QStringList names = fonts_.stringList();
  const auto found = std::find_if(names.begin(), names.end(), [&wanted](const QString& name) {
    LogFont cut;
    cut.setFaceName(name.toStdString());
    return cut.faceName() == wanted.faceName();
  });
  const bool listed = found != names.end();
  ui_->lstFonts->setCurrentIndex(listed ? fonts_.index(static_cast<int>(found - names.begin()))
                                        : QModelIndex());
  ui_->lblFontName->setText(listed ? *found : qtText(settingsTexts().noFont));
}

void FontTab::lstFontsClick() {
  const QModelIndexList rows = ui_->lstFonts->selectionModel()->selectedIndexes();
  if (rows.isEmpty()) return;
  const QString name = rows.front().data().toString();
  draft_.set.Font.LogFont.setFaceName(name.toStdString());
  ui_->lblFontName->setText(name);
  RefreshFontExample();
}

void FontTab::RefreshFontExample() {
  ui_->pFontExample->setFontState(draft_.set.Font);
}

}  // namespace qor
