// Printers.
#include "windows/settings/printer_tab.h"

#include <QSet>
#include <QSignalBlocker>
#include <utility>

#include "language/language.h"
#include "platform/print/print_system.h"
#include "platform/qt/qt_text.h"
#include "settings/printer_tree.h"
#include "settings/printers.h"
#include "ui_printer_tab.h"
#include "window_model/set_draft.h"

namespace qor {
namespace {

bool isAligned(const TreeNode& node) {
  return node.text == kPrinterParameters || node.text == kPaperSize;
}

std::string nameOf(const QTreeWidgetItem& node) {
  return node.text(0).toStdString();
}

}  // namespace

PrinterTab::PrinterTab(SetDraft& draft)
    : draft_(draft), ui_(std::make_unique<Ui::tabPrinter>()), inquiry_([this] {
        QMetaObject::invokeMethod(this, &PrinterTab::takeAnswers, Qt::QueuedConnection);
      }) {
  ui_->setupUi(this);
  // A tree that gets the focus makes an item the current one, but selects none.
  connect(ui_->treePrinters, &QTreeWidget::itemSelectionChanged, this,
          &PrinterTab::treePrintersClick);
  connect(ui_->treePrinters, &QTreeWidget::itemExpanded, this, &PrinterTab::treePrintersExpanded);
  connect(ui_->cmdPrinter_Reset, &QPushButton::clicked, this, [this] {
    resetPrinter(draft_.set);
    emit printerChosen();
    PrinterShow();
  });
}

PrinterTab::~PrinterTab() = default;

Captions PrinterTab::captions(const SettingsTexts& texts) const {
  ui_->cmdPrinter_Reset->setToolTip(qtText(texts.defaultsHint));
  return {{ui_->lblPrinterList, texts.printerList}, {ui_->cmdPrinter_Reset, texts.defaults}};
}

void PrinterTab::FormShow() {
  fillTree();
  inquiry_.askForNames();
  inquiry_.askFor(draft_.set.PrinterName);
}

void PrinterTab::fillTree() {
  QTreeWidget& tree = *ui_->treePrinters;
  const QSignalBlocker blocker(tree);
  QSet<QString> open;
  for (int i = 0; i < tree.topLevelItemCount(); ++i) {
    if (tree.topLevelItem(i)->isExpanded()) open.insert(tree.topLevelItem(i)->text(0));
  }
  tree.clear();
  std::vector<TreeNode> nodes;
  FillPrinterTree(nodes);
  for (const TreeNode& node : nodes) {
    auto* item = new QTreeWidgetItem(&tree, {qtText(node.text)});
    fillNode(*item, node);
    item->setExpanded(open.contains(item->text(0)) && !node.isUnknown);
  }
}

// The labels of what a printer tells are padded for a fixed pitch. A selected row that goes leaves
// the selection to its neighbours: that is nobody's choice.
void PrinterTab::fillNode(QTreeWidgetItem& item, const TreeNode& node) const {
  const QSignalBlocker blocker(ui_->treePrinters);
  qDeleteAll(item.takeChildren());
  item.setChildIndicatorPolicy(node.isUnknown ? QTreeWidgetItem::ShowIndicator
                                              : QTreeWidgetItem::DontShowIndicatorWhenChildless);
  if (node.isDefault) {
    QFont font = ui_->treePrinters->font();
    font.setBold(true);
    item.setFont(0, font);
    item.setForeground(0, palette().brush(QPalette::Link));
  }
  const QFont fixed("Courier New");
  for (const TreeNode& branch : node.children) {
    auto* branchItem = new QTreeWidgetItem(&item, {qtText(branch.text)});
    for (const TreeNode& leaf : branch.children) {
      auto* leafItem = new QTreeWidgetItem(branchItem, {qtText(leaf.text)});
      if (isAligned(branch)) leafItem->setFont(0, fixed);
    }
  }
}

// Printers that have told of themselves bring papers of their own along.
void PrinterTab::fillServerNode() {
  const TreeNode server = printServerNode();
  if (QTreeWidgetItem* item = findNode(server.text)) fillNode(*item, server);
}

QTreeWidgetItem* PrinterTab::findNode(const std::string& name) const {
  const QTreeWidget& tree = *ui_->treePrinters;
  for (int i = 0; i < tree.topLevelItemCount(); ++i) {
    if (nameOf(*tree.topLevelItem(i)) == name) return tree.topLevelItem(i);
  }
  return nullptr;
}

const std::string& PrinterTab::printerToKnow() const {
  return shown_.empty() ? draft_.set.DefaultPrinterName : shown_;
}

bool PrinterTab::isKnown() const {
  return printSystem().knows(printerToKnow());
}

void PrinterTab::PrinterShow() {
  QTreeWidgetItem* node = findNode(draft_.set.PrinterName);
  shown_ = node == nullptr ? std::string() : nameOf(*node);
  {
    const QSignalBlocker blocker(ui_->treePrinters);
    ui_->treePrinters->setCurrentItem(node);
  }
  if (!isKnown()) inquiry_.askFor(printerToKnow());
  const bool empty = ui_->treePrinters->topLevelItemCount() == 0;
  ui_->lblPrinter->setText(qtText(empty ? settingsTexts().noPrinters : std::string_view(shown_)));
  tellState();
  emit printerShown();
}

void PrinterTab::treePrintersClick() {
  const QList<QTreeWidgetItem*> nodes = ui_->treePrinters->selectedItems();
  if (nodes.isEmpty() || nodes.front()->parent() != nullptr) return;
  draft_.set.PrinterName = nameOf(*nodes.front());
  emit printerChosen();
  PrinterShow();
}

void PrinterTab::treePrintersExpanded(const QTreeWidgetItem* node) {
  const std::string name = nameOf(*node);
  const bool isPrinter = node->parent() == nullptr && name != printServerNode().text;
  if (isPrinter && !printSystem().knows(name)) inquiry_.askFor(name);
}

void PrinterTab::takeAnswers() {
  const PrinterInquiry::Answers answers = inquiry_.take();
  if (answers.names) {
    takeDefault();
    fillTree();
    PrinterShow();
  }
  for (const std::string& name : answers.printers) {
    if (QTreeWidgetItem* item = findNode(name)) fillNode(*item, printerNode(name));
    if (name == printerToKnow() && !answers.names) PrinterShow();
  }
  if (!answers.printers.empty()) fillServerNode();
  tellState();
}

// Whoever has the default printer goes on with another one that takes its place.
void PrinterTab::takeDefault() {
  VSet& set = draft_.set;
  const std::string before = std::exchange(set.DefaultPrinterName, GetDefaultPrinterName());
  if (set.PrinterName == before) set.PrinterName = set.DefaultPrinterName;
}

void PrinterTab::tellState() {
  const SettingsTexts& texts = settingsTexts();
  const std::string& wanted = draft_.set.PrinterName;
  QString note;
  if (inquiry_.isAskingForNames()) {
    note = qtText(texts.askingPrinters);
  } else if (shown_.empty()) {
    note = qtText(texts.printerGone) + qtText(wanted);
  } else if (!isKnown()) {
    note = qtText(texts.askingPrinter);
  } else if (shown_ != printServerNode().text && printSystem().find(shown_) == nullptr) {
    note = qtText(texts.printerSilent);
  }
  ui_->lblPrinterNote->setText(note);
}

}  // namespace qor
