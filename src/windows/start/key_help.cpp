// The dialog of F1.
#include "windows/start/key_help.h"

#include <QDesktopServices>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QUrl>
#include <QVBoxLayout>

#include "platform/qt/qt_text.h"
#include "platform/system/directory.h"
#include "platform/system/input_file.h"
#include "window_model/preview_texts.h"
#include "windows/view/command_table.h"
#include "windows/view/key_table.h"

namespace qor {
namespace {

constexpr QSize kSize = {520, 620};

// Beside the program's directory in lib/, or in that of the machine's kind in lib/; empty where it
// isn't installed.
QString guideFile() {
  for (const char* up : {"../../", "../../../"}) {
    const std::string file = programDirectory() + up + "share/doc/qorutlview/guide/index.html";
    if (fileExists(file)) return qtText(file);
  }
  return {};
}

void addRow(QTableWidget& table, const QString& keys, const QString& does) {
  const int row = table.rowCount();
  table.insertRow(row);
  table.setItem(row, 0, new QTableWidgetItem(keys));
  table.setItem(row, 1, new QTableWidgetItem(does));
}

void fill(QTableWidget& table) {
  const PreviewTexts& texts = previewTexts();
  for (const CommandRow& row : commandTable()) {
    QStringList keys;
    for (const KeyUse& key : row.keys)
      if (!key.isNone()) keys.append(key.text());
    if (!keys.isEmpty()) addRow(table, keys.join(", "), qtText(texts.*row.text));
  }
  for (const KeyRow& row : keyTable()) addRow(table, row.key.text(), qtText(texts.*row.does));
}

QTableWidget* keyList(QDialog& dialog) {
  auto* table = new QTableWidget(0, 2, &dialog);
  table->setObjectName("lstKeys");
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setShowGrid(false);
  table->setTabKeyNavigation(false);
  table->verticalHeader()->hide();
  table->horizontalHeader()->hide();
  fill(*table);
  table->resizeColumnsToContents();
  table->horizontalHeader()->setStretchLastSection(true);
  return table;
}

}  // namespace

void showKeyHelp(QWidget& window) {
  QDialog dialog(&window);
  dialog.setObjectName("keyHelp");
  dialog.setWindowTitle(qtText(previewTexts().keysAndGuide));
  dialog.resize(kSize.boundedTo(window.size() + kSize / 2));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
  buttons->button(QDialogButtonBox::Close)->setText(qtText(previewTexts().close));
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  if (const QString guide = guideFile(); !guide.isEmpty()) {
    const QPushButton* open =
        buttons->addButton(qtText(previewTexts().guide), QDialogButtonBox::HelpRole);
    QObject::connect(open, &QPushButton::clicked, &dialog,
                     [guide] { QDesktopServices::openUrl(QUrl::fromLocalFile(guide)); });
  }
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(keyList(dialog));
  layout->addWidget(buttons);
  dialog.exec();
}

}  // namespace qor
