// Sets.
#include "windows/settings/sets_tab.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHideEvent>
#include <QItemSelectionModel>
#include <QMessageBox>
#include <QScopedValueRollback>

#include "base/app_options.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "ui_sets_tab.h"
#include "window_model/set_draft.h"
#include "window_model/set_store.h"
#include "windows/failure_text.h"

namespace qor {
namespace {

QStringList qtTexts(const std::vector<std::string>& texts) {
  QStringList list;
  list.reserve(static_cast<qsizetype>(texts.size()));
  for (const std::string& text : texts) list.append(qtText(text));
  return list;
}

// The user's choice of a set file; empty if there is none.
QString chosenFile(QWidget* parent, QFileDialog::AcceptMode mode, std::string_view title) {
  const QFileInfo present(qtText(AppOptions.IniFileName));
  QFileDialog dialog(parent, qtText(title), {}, "*.vset (*.vset)");
  dialog.setAcceptMode(mode);
  if (mode == QFileDialog::AcceptOpen) {
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (!present.filePath().isEmpty()) dialog.setDirectory(qtText(AppOptions.WorkDir));
  } else {
    dialog.setDefaultSuffix("vset");
    dialog.setOption(QFileDialog::DontConfirmOverwrite);  // the other sets of the file stay
    if (!present.filePath().isEmpty()) dialog.setDirectory(present.path());
  }
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace

SetsTab::SetsTab(SetDraft& draft) : draft_(draft), ui_(std::make_unique<Ui::tabSets>()) {
  ui_->setupUi(this);
  ui_->lstListOfSetsNames->setModel(&names_);
  ui_->lstListOfSets->setModel(&lines_);
  ui_->lstListOfSets->setFont(QFont("Courier New"));
  openText(false);
  connectControls();
}

SetsTab::~SetsTab() = default;

void SetsTab::connectControls() {
  const auto onClick = [this](QPushButton* button, void (SetsTab::*command)()) {
    connect(button, &QPushButton::clicked, this, command);
  };
  onClick(ui_->cmdSets_FileOpen, &SetsTab::cmdSets_FileOpen_Click);
  onClick(ui_->cmdSets_FileSave, &SetsTab::cmdSets_FileSave_Click);
  onClick(ui_->cmdSets_FileSaveAs, &SetsTab::cmdSets_FileSaveAs_Click);
  onClick(ui_->cmdSets_Delete, &SetsTab::cmdSets_Delete_Click);
  onClick(ui_->cmdSets_ViewIni, &SetsTab::cmdSets_ViewIni_Click);
  onClick(ui_->cmdSets_Reset, &SetsTab::resetAsked);
  connect(ui_->txtNameOfSet, &QLineEdit::textChanged, this, &SetsTab::txtNameOfSetChange);
  // Clicks load a set, the selected one again, and so do the keys that move the selection.
  connect(ui_->lstListOfSetsNames, &QListView::clicked, this, &SetsTab::lstListOfSetsNames_Click);
  connect(ui_->lstListOfSetsNames->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] {
            if (!listing_ && QGuiApplication::mouseButtons() == Qt::NoButton)
              lstListOfSetsNames_Click();
          });
}

Captions SetsTab::captions(const SettingsTexts& texts) const {
  ui_->cmdSets_Reset->setToolTip(qtText(texts.defaultsHint));
  ui_->cmdSets_FileOpen->setToolTip(qtText(texts.openFileHint));
  ui_->cmdSets_FileSave->setToolTip(qtText(texts.saveFileHint));
  ui_->cmdSets_FileSaveAs->setToolTip(qtText(texts.saveFileAsHint));
  ui_->lblNameOfFile->setText(qtText(texts.nameOfFile));
  return {{ui_->cmdSets_Reset, texts.defaults},    {ui_->cmdSets_FileOpen, texts.openFile},
          {ui_->cmdSets_FileSave, texts.saveFile}, {ui_->cmdSets_FileSaveAs, texts.saveFileAs},
          {ui_->cmdSets_Delete, texts.deleteSet},  {ui_->lblNameOfSet, texts.nameOfSet},
          {ui_->lblListOfSets, texts.namesOfSets}, {ui_->cmdSets_ViewIni, texts.setValues},
          {ui_->lblSetValues, texts.setValues}};
}

void SetsTab::SetsShow() {
  const QFileInfo file(qtText(AppOptions.IniFileName));
  ui_->lblFileName->setText(file.fileName());
  ui_->lblFileName->setToolTip(file.filePath());
  not_listed_ = failureOf([this] { listNames(); });
  if (!not_listed_.isNull()) names_.setStringList({});
  ui_->txtNameOfSet->setText(qtText(AppOptions.SetName));
  txtNameOfSetChange();
  showSetText();
}

// Nothing is loaded by the selection of what is in force.
void SetsTab::listNames() {
  const QScopedValueRollback<bool> guard(listing_, true);
  const QStringList names = qtTexts(namesOfSets());
  if (names != names_.stringList()) names_.setStringList(names);
  const auto row = static_cast<int>(names.indexOf(qtText(AppOptions.SetName)));
  ui_->lstListOfSetsNames->setCurrentIndex(row < 0 ? QModelIndex() : names_.index(row));
}

std::string SetsTab::name() const {
  return ui_->txtNameOfSet->text().toStdString();
}

// False if the step failed; the user knows why then.
bool SetsTab::attempt(const std::function<void()>& step) {
  const QString failure = failureOf(step);
  if (failure.isNull()) return true;
  QMessageBox(QMessageBox::Warning, window()->windowTitle(), failure, QMessageBox::Ok, this).exec();
  return false;
}

void SetsTab::cmdSets_FileOpen_Click() {
  const QString file = chosenFile(this, QFileDialog::AcceptOpen, settingsTexts().openFileHint);
  if (!file.isEmpty() && attempt([&file] { openSetFile(file.toStdString()); })) SetsShow();
}

void SetsTab::cmdSets_FileSave_Click() {
  if (AppOptions.IniFileName.empty() || AppOptions.SetName.empty()) {
    cmdSets_FileSaveAs_Click();
  } else {
    saveIn(AppOptions.IniFileName);
  }
}

// Whoever cancels the choice of a file saves into the one that is in force.
void SetsTab::cmdSets_FileSaveAs_Click() {
  const QString file = chosenFile(this, QFileDialog::AcceptSave, settingsTexts().saveFileAsHint);
  saveIn(file.isEmpty() ? AppOptions.IniFileName : file.toStdString());
}

void SetsTab::saveIn(const std::string& file) {
  if (attempt([&] { saveSetAs(draft_.set, name(), file); })) SetsShow();
}

void SetsTab::cmdSets_Delete_Click() {
  if (!attempt([this] {
        deleteSetInForce();
        listNames();
      }))
    return;
  txtNameOfSetChange();
  showSetText();
}

void SetsTab::lstListOfSetsNames_Click() {
  const QModelIndexList rows = ui_->lstListOfSetsNames->selectionModel()->selectedIndexes();
  if (rows.isEmpty()) return;
  const QString chosen = rows.front().data().toString();
  ui_->txtNameOfSet->setText(chosen);
  if (attempt([&] { loadSetOf(chosen.toStdString(), draft_.set); })) emit setLoaded();
  tellSetInForce();
  showSetText();
}

void SetsTab::cmdSets_ViewIni_Click() {
  openText(ui_->pSetValues->isHidden());
  showSetText();
}

// The list of names gives up room for the text.
void SetsTab::openText(bool open) {
  ui_->pSetValues->setVisible(open);
}

void SetsTab::showSetText() {
  if (ui_->pSetValues->isHidden()) return;
  QStringList lines;
  if (attempt([&] { lines = qtTexts(linesOfSet(name(), draft_.set)); }))
    lines_.setStringList(lines);
}

void SetsTab::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!event->spontaneous()) openText(false);
}

void SetsTab::txtNameOfSetChange() {
  const bool listed = names_.stringList().contains(ui_->txtNameOfSet->text());
  ui_->cmdSets_Delete->setEnabled(listed);
  ui_->cmdSets_ViewIni->setEnabled(listed);
  tellSetInForce();
}

// Del removes what is in force, and not what is typed.
void SetsTab::tellSetInForce() {
  QString note = not_listed_;
  if (note.isEmpty() && !AppOptions.SetName.empty() && name() != AppOptions.SetName)
    note = qtText(settingsTexts().setInForce) + qtText(AppOptions.SetName);
  ui_->lblSetInForce->setText(note);
  ui_->lblSetInForce->setVisible(!note.isEmpty());
}

}  // namespace qor
