// Clipboard data.
#include "windows/selection/copied_data.h"

#include <QMimeData>
#include <memory>

#include "platform/qt/qt_text.h"
#include "window_model/cell_columns.h"
#include "window_model/copied_text.h"

namespace qor {

QMimeData* copiedData(const TextMap& map, const TextSelection& selection) {
  const auto rows = copiedRows(map, selection);
  auto data = std::make_unique<QMimeData>();
  data->setText(qtText(plainText(rows)));
  if (selection.kind() == SelectionKind::rectangle) {
    const CellRows cells = cellsOf(rows);
    data->setHtml(qtText(htmlTable(cells)));
    data->setData("text/tab-separated-values", QByteArray::fromStdString(tabSeparated(cells)));
  }
  return data.release();
}

QString copiedPlain(const TextMap& map, const TextSelection& selection) {
  return qtText(plainText(copiedRows(map, selection)));
}

}  // namespace qor
