// The dialog of F1.
#include "windows/start/key_help.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <filesystem>

#include "platform/qt/qt_text.h"
#include "platform/system/companion.h"
#include "platform/system/input_file.h"
#include "window_model/preview_texts.h"
#include "windows/view/command_table.h"
#include "windows/view/key_table.h"

namespace qor {
namespace {

constexpr QSize kSize = {520, 620};

// Beside the program's directory in lib/, or in that of the machine's kind in lib/; empty where it
// isn't installed.
std::string guideFile(const std::string& directory) {
  for (const char* up : {"../../", "../../../"}) {
    const std::filesystem::path share = directory + up + "share";
    std::string file = (share / "doc/qorutlview/guide/index.html").lexically_normal().string();
    if (fileExists(file)) return file;
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

QLabel* guidePlace(QDialog& dialog) {
  auto* label = new QLabel(&dialog);
  label->setObjectName("lblGuide");
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  label->setWordWrap(true);
  label->hide();
  return label;
}

// Who has no program for it, or one that fails, reads where it is.
void openGuide(const std::string& guide, QLabel& place) {
  const bool started = startCompanion("xdg-open", {guide});
  place.setText(qtText(guide) + (started ? QString() : qtText(previewTexts().reportNotOpened)));
  place.show();
}

}  // namespace

void showKeyHelp(QWidget& window, const std::string& directory) {
  QDialog dialog(&window);
  dialog.setObjectName("keyHelp");
  dialog.setWindowTitle(qtText(previewTexts().keysAndGuide));
  dialog.resize(kSize.boundedTo(window.size() + kSize / 2));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
  buttons->button(QDialogButtonBox::Close)->setText(qtText(previewTexts().close));
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto* place = guidePlace(dialog);
  if (const std::string guide = guideFile(directory); !guide.empty()) {
    const QPushButton* open =
        buttons->addButton(qtText(previewTexts().guide), QDialogButtonBox::HelpRole);
    QObject::connect(open, &QPushButton::clicked, place,
                     [guide, place] { openGuide(guide, *place); });
  }
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(keyList(dialog));
  layout->addWidget(place);
  layout->addWidget(buttons);
  dialog.exec();
}

}  // namespace qor
