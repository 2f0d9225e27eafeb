// Exporting by a dialog.
#include "windows/export/tfrm_convert.h"

#include <QAccessible>
#include <QFileDialog>
#include <QMessageBox>
#include <QShortcut>
#include <QSignalBlocker>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "export/export_formats.h"
#include "export/image/picture_names.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "platform/system/companion.h"
#include "platform/system/directory.h"
#include "platform/system/input_file.h"
#include "ui_tfrm_convert.h"
#include "window_model/export_captions.h"
#include "window_model/export_targets.h"
#include "window_model/export_words.h"
#include "windows/export/mail_hand_over.h"
#include "windows/export/pdf_loss_reader.h"
#include "windows/tab_captions.h"

namespace qor {
namespace {

// "*.html|*.html|*.htm|*.htm" in Qt's way.
QString qtFilter(std::string_view filter) {
  const QStringList parts = qtText(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
    filters.append(parts[i] + " (" + parts[i + 1] + ")");
  return filters.join(";;");
}

const ExportCaption& captionOf(const QWidget& control) {
  const std::string name = control.objectName().toStdString();
  return *std::find_if(kExportCaptions.begin(), kExportCaptions.end(),
                       [&name](const ExportCaption& each) { return each.control == name; });
}

// Those who hear the dialog learn of a label that has changed.
void tellReaders(QLabel& label) {
  QAccessibleEvent alert(&label, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace

TfrmConvert::TfrmConvert(const ExportCall& call)
    : QDialog(&call.window),
      call_(call),
      ui_(std::make_unique<Ui::TfrmConvert>()),
      losses_(new PdfLossReader(this)) {
  ui_->setupUi(this);
  for (const std::string_view type : kSheetTypeItems) ui_->cbXLSFileType->addItem(qtText(type));
  applyCaptions();
  FormShow();
  connectControls();
  losses_->watch(call_.doc);
}

TfrmConvert::~TfrmConvert() = default;

void TfrmConvert::applyCaptions() {
  const auto caption = [](QWidget* control) {
    const ExportCaption& given = captionOf(*control);
    control->setToolTip(qtText(given.hint));
    return Caption{control, given.caption};
  };
  setWindowTitle(qtText(captionOf(*this).caption));
  ui_->cmdFileSafeAs->setText(qtText(captionOf(*ui_->cmdFileSafeAs).caption));
  ui_->cmdFileSafeAs->setAccessibleName(qtText(exportTexts().chooseFile));
  ui_->cmdFileSafeAs->setToolTip(qtText(exportTexts().chooseFile));
  ui_->txtFileName->setAccessibleName(qtText(captionOf(*ui_->pFileName).caption));
  ui_->lblRtfPictures->setText(qtText(exportTexts().rtfPictures));
  for (QLabel* label : {ui_->lblRtfFlow, ui_->lblDocFlow})
    label->setText(qtText(exportTexts().documentsFlow));
  setCaptions(*ui_->Pages_Convert, {"TXT", "HTML", "RTF", "DOC", "PDF", "BMP, JPEG, PNG", "XLS"},
              {caption(ui_->cmdOk), caption(ui_->cmdCancel), caption(ui_->chkPreview),
               caption(ui_->chkEmail), caption(ui_->pFileName)},
              {{caption(ui_->chkUseNewPageChar), caption(ui_->chkUseEOFChar)},
               {caption(ui_->chkSaveHtmlPictures), caption(ui_->chkSaveAsMHT)},
               {caption(ui_->chkSaveRtfPictures)},
               {caption(ui_->chkSaveDocPictures)},
               {caption(ui_->chkPrinToPdf), caption(ui_->chkScaleFlag)},
               {caption(ui_->chbBMP), caption(ui_->chbJPEG), caption(ui_->chbGIF),
                caption(ui_->chbICO), caption(ui_->chbPNG)},
               {caption(ui_->lblFileType), caption(ui_->chbPageSeparator), caption(ui_->GroupBox3),
                caption(ui_->cbSekme), caption(ui_->lblDiger)}});
}

void TfrmConvert::connectControls() {
  connect(ui_->Pages_Convert, &QTabWidget::currentChanged, this, &TfrmConvert::Pages_ConvertChange);
  connect(ui_->cbXLSFileType, &QComboBox::activated, this, &TfrmConvert::cbXLSFileTypeChange);
  connect(ui_->cbSekme, &QCheckBox::toggled, this, &TfrmConvert::cbSekmeClick);
  connect(ui_->chkPrinToPdf, &QCheckBox::toggled, this, &TfrmConvert::tellLosses);
  connect(ui_->cmdFileSafeAs, &QPushButton::clicked, this, &TfrmConvert::cmdFileSafeAsClick);
  connect(ui_->cmdOk, &QPushButton::clicked, this, &TfrmConvert::cmdOkClick);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &TfrmConvert::reject);
  connect(losses_, &PdfLossReader::foundMore, this, &TfrmConvert::tellLosses);
  // Also from outside the tabs, where their own keys don't reach.
  const auto step = [this](int by) {
    QTabWidget& tabs = *ui_->Pages_Convert;
    tabs.setCurrentIndex((tabs.currentIndex() + by + tabs.count()) % tabs.count());
  };
  new QShortcut(QKeySequence::NextChild, this, [step] { step(1); });
  new QShortcut(QKeySequence::PreviousChild, this, [step] { step(-1); });
}

void TfrmConvert::FormShow() {
  showStored(call_.state, choices_);
  putChoices();
  BuildExportFileName();
}

void TfrmConvert::FormClose() {
  takeChoices();
  storeChoices(choices_, call_.state);
}

void TfrmConvert::done(int result) {
  losses_->stop();
  FormClose();
  QDialog::done(result);
}

std::vector<std::pair<QCheckBox*, bool ExportChoices::*>> TfrmConvert::boxes() const {
  using Choices = ExportChoices;
  return {{ui_->chkUseNewPageChar, &Choices::useNewPageChar},
          {ui_->chkUseEOFChar, &Choices::useEofChar},
          {ui_->chkSaveHtmlPictures, &Choices::saveHtmlPictures},
          {ui_->chkSaveDocPictures, &Choices::saveDocPictures},
          {ui_->chkPrinToPdf, &Choices::printToPdf},
          {ui_->chkScaleFlag, &Choices::scaleToPaper},
          {ui_->chbPageSeparator, &Choices::pagePerSheet},
          {ui_->cbSekme, &Choices::tabSeparates},
          {ui_->chkPreview, &Choices::preview},
          {ui_->chkEmail, &Choices::mail}};
}

// By ImageFormat.
std::array<QCheckBox*, kImageFormatCount> TfrmConvert::pictureBoxes() const {
  return {ui_->chbBMP, ui_->chbJPEG, ui_->chbGIF, ui_->chbICO, ui_->chbPNG};
}

void TfrmConvert::takeChoices() {
  for (const auto& [box, choice] : boxes()) choices_.*choice = box->isChecked();
  const auto pictures = pictureBoxes();
  for (std::size_t i = 0; i < pictures.size(); ++i)
    choices_.pictures.set(i, pictures[i]->isChecked());
  choices_.format = ui_->Pages_Convert->currentIndex();
  choices_.sheetType = ui_->cbXLSFileType->currentIndex();
  choices_.separator = ui_->txtSep->text().toStdString();
}

void TfrmConvert::putChoices() {
  const QSignalBlocker page(ui_->Pages_Convert);
  const QSignalBlocker separator(ui_->cbSekme);
  for (const auto& [box, choice] : boxes()) box->setChecked(choices_.*choice);
  const auto pictures = pictureBoxes();
  for (std::size_t i = 0; i < pictures.size(); ++i)
    pictures[i]->setChecked(choices_.pictures.test(i));
  ui_->Pages_Convert->setCurrentIndex(choices_.format);
  ui_->cbXLSFileType->setCurrentIndex(choices_.sheetType);
  ui_->txtSep->setText(qtText(choices_.separator));
  ui_->chkScaleFlag->setEnabled(choices_.scaleEnabled);
  ui_->GroupBox3->setEnabled(choices_.separatorsEnabled);
  ui_->cbSekme->setEnabled(choices_.separatorsEnabled);
  ui_->lblDiger->setEnabled(choices_.separatorsEnabled);
  ui_->txtSep->setEnabled(choices_.separatorEnabled);
}

void TfrmConvert::Pages_ConvertChange() {
  takeChoices();
  BuildExportFileName();
  tellLosses();
}

void TfrmConvert::BuildExportFileName() {
  putName(qor::BuildExportFileName(AppOptions.FileName, choices_.format, choices_.sheetType));
}

void TfrmConvert::putName(const ProposedName& proposed) {
  proposed_ = proposed;
  ui_->txtFileName->setText(qtText(proposed.fileName));
  tell({});
}

void TfrmConvert::cbXLSFileTypeChange() {
  takeChoices();
  chooseSheetType(choices_.sheetType, choices_);
  putChoices();
  putName(nameForSheetType(ui_->txtFileName->text().toStdString(), choices_.sheetType));
}

void TfrmConvert::cbSekmeClick() {
  takeChoices();
  chooseTab(choices_.tabSeparates, choices_);
  putChoices();
}

void TfrmConvert::cmdFileSafeAsClick() {
  QFileDialog dialog(this, windowTitle(), QDir::currentPath(), qtFilter(proposed_.filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(qtText(proposed_.defaultExtension));
  dialog.selectFile(ui_->txtFileName->text());
  if (dialog.exec() != QDialog::Accepted) return;
  ui_->txtFileName->setText(dialog.selectedFiles().value(0));
  const std::string chosen = ui_->txtFileName->text().toStdString();
  agreed_ = isTaken(chosen) ? chosen : std::string();
}

// Nothing is written elsewhere than where the user sees it, and nothing is replaced unasked.
bool TfrmConvert::mayWrite(const ExportFormat& format, const std::string& target) {
  if (!canWrite(format, target)) {
    tell(qtText(exportTexts().noExporter) + qtText(target));
    return false;
  }
  const auto files = filesOfExport(format.id, target, choices_.pictures, call_.doc.PageCount);
  const TargetLook look = lookAtTarget(target, files, AppOptions.FileName);
  if (look.fault != TargetFault::none) {
    tell(qtText(faultText(look)));
    return false;
  }
  const bool agreed = look.existing.empty() || look.existing == std::vector{agreed_};
  return agreed || asksToReplace(look.existing);
}

bool TfrmConvert::asksToReplace(const std::vector<std::string>& files) {
  QMessageBox box(QMessageBox::Question, windowTitle(), qtText(replaceQuestion(files)),
                  QMessageBox::NoButton, this);
  box.setTextFormat(Qt::PlainText);
  box.addButton(QMessageBox::Yes)->setText(qtText(exportTexts().replace));
  box.addButton(QMessageBox::No)->setText(qtText(exportTexts().keep));
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

void TfrmConvert::cmdOkClick() {
  takeChoices();
  const ExportFormat& format = formatWithId(choices_.format);
  const std::string target = targetOf(ui_->txtFileName->text().toStdString());
  if (format.id == kExportPictures) {
    choices_.pictures = writtenFormats(target, choices_.pictures);
    putChoices();
  }
  if (!mayWrite(format, target)) return ui_->txtFileName->setFocus();
  tell({});
  losses_->stop();
  const ExportRun run = exportTo(format, target);
  if (run.succeeded) return finish(target, run);
  losses_->watch(call_.doc);
  agreed_.clear();
}

// What fails is told here; what the exporter has told before it stopped, in a box.
ExportRun TfrmConvert::exportTo(const ExportFormat& format, const std::string& target) {
  const int codePage = call_.doc.Settings.Page.BaseCodePage;
  ExportRun run =
      runWithProgress(*this, call_, format, target, dialogOptions(choices_, call_.view, codePage));
  call_.made.insert(call_.made.end(), run.files.begin(), run.files.end());
  if (!run.failure.isNull()) {
    tell(run.failure);
  } else if (!run.succeeded && !run.told.isNull()) {
    showBox(run.told);
  }
  return run;
}

void TfrmConvert::finish(const std::string& target, const ExportRun& run) {
  call_.tell(run.told);
  const std::string& first = run.files.front();
  if (fileExists(first)) {
    choices_.preview ? openFile(first)
                     : showBox(qtText(exportedText(target, call_.doc.Settings.Page.BaseCodePage)));
    if (choices_.mail) handToMail(run.files, call_);
  }
  accept();
}

void TfrmConvert::openFile(const std::string& file) {
  if (!startCompanion("xdg-open", {fullPath(file)}))
    call_.tell(qtText(exportTexts().noProgram) + qtText(file));
}

void TfrmConvert::showBox(const QString& text) {
  QMessageBox box(QMessageBox::Warning, qtText(interfaceTexts().ApplicationTitle), text,
                  QMessageBox::Ok, this);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

void TfrmConvert::tell(const QString& note) {
  ui_->lblNote->setText(note);
  ui_->lblNote->setVisible(!note.isEmpty());
  if (!note.isEmpty()) tellReaders(*ui_->lblNote);
}

// What the printer way keeps needs no word.
void TfrmConvert::tellLosses() {
  std::string notice;
  if (!ui_->chkPrinToPdf->isChecked()) notice = pdfNotice(losses_->found());
  if (!notice.empty()) notice += exportTexts().pdfByBox;
  ui_->lblPdfLosses->setText(qtText(notice));
  if (!notice.empty()) tellReaders(*ui_->lblPdfLosses);
}

}  // namespace qor
