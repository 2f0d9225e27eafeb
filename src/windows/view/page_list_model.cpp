// Lines of the list of pages.
#include "windows/view/page_list_model.h"

#include "platform/qt/qt_text.h"
#include "window_model/preview_texts.h"

namespace qor {

int PageListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count_;
}

QVariant PageListModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !index.isValid()) return {};
  return qtText(pageListText(index.row() + 1));
}

void PageListModel::setPageCount(int count) {
  if (count > count_) {
    beginInsertRows({}, count_, count - 1);
    count_ = count;
    endInsertRows();
  } else if (count < count_) {
    beginRemoveRows({}, count, count_ - 1);
    count_ = count;
    endRemoveRows();
  }
}

void PageListModel::retranslate() {
  if (count_ > 0) emit dataChanged(index(0), index(count_ - 1));
}

}  // namespace qor
