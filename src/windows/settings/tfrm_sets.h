// The settings dialog: printer, what to print, font, sheet and sets, a tab each. It works on a
// draft that reaches the document by Apply and Print alone, and keeps it between showings: made
// once, shown often. This file holds the tabs together.
#pragma once

#include <QDialog>
#include <memory>

#include "window_model/printer_choices.h"
#include "window_model/set_draft.h"
#include "windows/view/view_commands.h"

namespace Ui {
class TfrmSets;
}

namespace qor {

class FontTab;
class PageTab;
class PrintTab;
class PrinterTab;
class SetsTab;

class TfrmSets : public QDialog {
  Q_OBJECT

 public:
  explicit TfrmSets(QWidget* parent);
  ~TfrmSets() override;

  // Shows the dialog for a document until the user has done with it. The draft is taken from the
  // first document that comes.
  SettingsAnswer ask(VDoc& doc, PreviewKind view);

  void reject() override;

 private:
  void addTabs();
  void connectControls();
  void applyCaptions();
  void takeCodePage(std::int32_t codePage);
  void FormShow(PreviewKind view);
  void fitScreen();
  void printerShown();
  void showPage();
  void setLoaded();
  void cmdPage_ResetClick();
  void cmdSets_ResetClick();
  void cmdOkClick(DialogResult result);
  void tellReplaced();
  void bringBack();
  void updateButtons();

  std::unique_ptr<Ui::TfrmSets> ui_;
  SetDraft draft_;
  VDoc* doc_ = nullptr;
  bool copied_ = false;                    // the draft holds the document's set
  std::int32_t code_page_ = 0;             // of the document, when it was asked for last
  std::string listed_;                     // the printer whose own values the draft has got
  std::optional<PrinterValues> replaced_;  // what they took the place of
  PrinterTab* printer_tab_;
  PrintTab* print_tab_;
  FontTab* font_tab_;
  PageTab* page_tab_;
  SetsTab* sets_tab_;
};

}  // namespace qor
