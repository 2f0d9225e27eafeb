// The tab of printers: a tree of all that they tell. Printers are asked in the background: their
// names whenever the dialog is shown, their details when a printer is chosen or its node opened.
#pragma once

#include <QWidget>
#include <memory>

#include "language/settings_texts.h"
#include "platform/print/printer_inquiry.h"
#include "windows/tab_captions.h"

class QTreeWidgetItem;
namespace Ui {
class tabPrinter;
}

namespace qor {

struct SetDraft;
struct TreeNode;

class PrinterTab : public QWidget {
  Q_OBJECT

 public:
  explicit PrinterTab(SetDraft& draft);
  ~PrinterTab() override;

  // Fills the tree with what is known and asks for the rest.
  void FormShow();

  // Selects the printer of the draft, if there is one of that name.
  void PrinterShow();

  // The name that is shown; empty where the draft's printer isn't there.
  const std::string& shownPrinter() const { return shown_; }

  // Whether its papers and bins are known by now; those of the default printer, where there is
  // none.
  bool isKnown() const;

  Captions captions(const SettingsTexts& texts) const;

 signals:
  // The user has chosen a printer.
  void printerChosen();
  // A printer is shown, or the one that is shown has told what it can do.
  void printerShown();

 private:
  void treePrintersClick();
  void treePrintersExpanded(const QTreeWidgetItem* node);
  void takeAnswers();
  void takeDefault();
  const std::string& printerToKnow() const;
  void fillTree();
  void fillNode(QTreeWidgetItem& item, const TreeNode& node) const;
  void fillServerNode();
  QTreeWidgetItem* findNode(const std::string& name) const;
  void tellState();

  SetDraft& draft_;
  std::unique_ptr<Ui::tabPrinter> ui_;
  PrinterInquiry inquiry_;
  std::string shown_;
};

}  // namespace qor
