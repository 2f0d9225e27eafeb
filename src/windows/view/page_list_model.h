// The lines of the list of pages, made when they are seen: a report may have a million.
#pragma once

#include <QAbstractListModel>

namespace qor {

class PageListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  void setPageCount(int count);
  void retranslate();

 private:
  int count_ = 0;
};

}  // namespace qor
