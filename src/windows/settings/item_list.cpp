// Items in boxes.
#include "windows/settings/item_list.h"

#include <QComboBox>

#include "platform/qt/qt_text.h"
#include "window_model/set_choices.h"

namespace qor {

void fillItems(QComboBox& box, const std::vector<std::string>& items, int selected,
               const std::set<int>& usual) {
  box.clear();
  for (const std::string& item : items) {
    box.addItem(qtText(nameOfItem(item)), qtText(item));
    if (usual.contains(numberOfItem(item)))
      box.setItemData(box.count() - 1, box.palette().brush(QPalette::Link), Qt::ForegroundRole);
  }
  box.setCurrentIndex(selected);
}

std::string itemAt(const QComboBox& box, int place) {
  return box.itemData(place).toString().toStdString();
}

}  // namespace qor
