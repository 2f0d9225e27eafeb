// The export dialog: a tab a format, the target, and what follows. It is made for one showing. Its
// choices are remembered however it ends.
#pragma once

#include <QDialog>
#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "window_model/export_choices.h"
#include "window_model/export_names.h"
#include "windows/export/export_run.h"
#include "windows/view/view_commands.h"

class QCheckBox;
namespace Ui {
class TfrmConvert;
}

namespace qor {

class PdfLossReader;
struct ExportFormat;

class TfrmConvert : public QDialog {
  Q_OBJECT

 public:
  // What the call refers to must outlive the dialog.
  explicit TfrmConvert(const ExportCall& call);
  ~TfrmConvert() override;

  void done(int result) override;

 private:
  void applyCaptions();
  void connectControls();
  void FormShow();
  void FormClose();
  void Pages_ConvertChange();
  void BuildExportFileName();
  void cbXLSFileTypeChange();
  void cbSekmeClick();
  void cmdFileSafeAsClick();
  void cmdOkClick();

  std::vector<std::pair<QCheckBox*, bool ExportChoices::*>> boxes() const;
  std::array<QCheckBox*, kImageFormatCount> pictureBoxes() const;
  void takeChoices();
  void putChoices();
  void putName(const ProposedName& proposed);
  bool mayWrite(const ExportFormat& format, const std::string& target);
  bool asksToReplace(const std::vector<std::string>& files);
  ExportRun exportTo(const ExportFormat& format, const std::string& target);
  void finish(const std::string& target, const ExportRun& run);
  void openFile(const std::string& file);
  void showBox(const QString& text);
  void tell(const QString& note);
  void tellLosses();

  const ExportCall& call_;
  std::unique_ptr<Ui::TfrmConvert> ui_;
  ExportChoices choices_;
  ProposedName proposed_;
  std::string agreed_;  // the target that the save dialog has asked about
  PdfLossReader* losses_;
};

}  // namespace qor
