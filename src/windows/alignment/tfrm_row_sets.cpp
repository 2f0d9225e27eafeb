// Properties of lines.
#include "windows/alignment/tfrm_row_sets.h"

#include <QButtonGroup>
#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QRadioButton>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "base/errors.h"
#include "base/text.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "ui_tfrm_row_sets.h"
#include "windows/qt_color.h"

namespace qor {
namespace {

constexpr int kDotStyle = 2;  // also of a number that no style has

// How the styles look, in their order.
constexpr const char* kSamples[] = {"______________", "_ _ _ _ _ _ _ _ _  ",
                                    "........................", "_._._._._._._._._.",
                                    "_.._.._.._.._.._.._.._.."};

// The number of an edit. Throws ConversionError.
std::int32_t numberIn(const QLineEdit& edit, std::int32_t highest) {
  const std::string text = edit.text().toStdString();
  const auto number = parseInteger(text);
  if (!number) throw ConversionError("\"" + text + "\"" + std::string(alignmentTexts().notANumber));
  return std::clamp(*number, 1, highest);
}

}  // namespace

TfrmRowSets::TfrmRowSets(const LineLook& look, std::function<void(const LineLook&)> apply,
                         QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::TfrmRowSets>()),
      look_(look),
      apply_(std::move(apply)) {
  ui_->setupUi(this);
  applyCaptions();
  FormShow();
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  connect(ui_->btnColor, &QPushButton::clicked, this, &TfrmRowSets::btnColorClick);
  connect(ui_->cbRowShowFlag, &QCheckBox::toggled, this,
          [this](bool on) { look_.showFlag = on ? 1 : 0; });
  connect(ui_->cmdOk, &QPushButton::clicked, this, &TfrmRowSets::cmdOkClick);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmRowSets::~TfrmRowSets() = default;

void TfrmRowSets::applyCaptions() {
  const AlignmentTexts& texts = alignmentTexts();
  setWindowTitle(qtText(texts.title));
  ui_->grpSize->setTitle(qtText(texts.size));
  ui_->lblHeight->setText(qtText(texts.height));
  ui_->lblWidth->setText(qtText(texts.lineWidth));
  ui_->UpDown1->setAccessibleName(qtText(texts.height));
  ui_->UpDown2->setAccessibleName(qtText(texts.lineWidth));
  ui_->btnColor->setText(qtText(texts.color));
  ui_->txtColor->setAccessibleName(qtText(texts.color));
  ui_->rgrpPenStyle->setTitle(qtText(texts.style));
  ui_->cbRowShowFlag->setText(qtText(texts.showAtStart));
  ui_->cmdOk->setText(qtText(texts.apply));
  ui_->cmdCancel->setText(qtText(texts.cancel));
}

void TfrmRowSets::FormShow() {
  bindNumber(ui_->txtHeight, ui_->UpDown1, look_.height, kMostLineHeight);
  bindNumber(ui_->txtWidth, ui_->UpDown2, look_.penWidth, kMostPenWidth);
  showColor();
  auto* styles = new QButtonGroup(this);
  const int chosen =
      look_.penStyle >= 0 && look_.penStyle < std::ssize(kSamples) ? look_.penStyle : kDotStyle;
  for (int style = 0; style < std::ssize(kSamples); ++style) {
    auto* button = new QRadioButton(kSamples[style]);
    styles->addButton(button, style);
    ui_->styles->addWidget(button);
    button->setChecked(style == chosen);
  }
  connect(styles, &QButtonGroup::idClicked, this, &TfrmRowSets::rgrpPenStyleClick);
  ui_->cbRowShowFlag->setChecked(look_.showFlag == 1);
}

// The arrows and the edit follow each other. A bar for scrolling counts downwards, a number
// upwards.
void TfrmRowSets::bindNumber(QLineEdit* edit, QScrollBar* arrows, int value, int highest) {
  arrows->setRange(-highest, -1);
  arrows->setValue(-value);
  edit->setText(QString::number(value));
  connect(arrows, &QScrollBar::valueChanged, edit,
          [edit](int number) { edit->setText(QString::number(-number)); });
  connect(edit, &QLineEdit::textEdited, arrows, [edit, arrows] {
    const QSignalBlocker quiet(arrows);
    if (const auto number = parseInteger(edit->text().toStdString()))
      arrows->setValue(-std::clamp(*number, 1, -arrows->minimum()));
  });
}

void TfrmRowSets::showColor() {
  ui_->txtColor->setStyleSheet(QString("background: %1").arg(qtColor(look_.color).name()));
}

void TfrmRowSets::btnColorClick() {
  const QColor color = QColorDialog::getColor(qtColor(look_.color), this, windowTitle());
  if (!color.isValid()) return;
  look_.color = canvasColor(color);
  showColor();
}

void TfrmRowSets::cmdOkClick() {
  try {
    look_.height = numberIn(*ui_->txtHeight, kMostLineHeight);
    look_.penWidth = numberIn(*ui_->txtWidth, kMostPenWidth);
    apply_(look_);
    accept();
  } catch (const Error& error) {
    QMessageBox box(QMessageBox::Warning, qtText(interfaceTexts().ApplicationTitle),
                    qtText(error.what()), QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
  }
}

}  // namespace qor
