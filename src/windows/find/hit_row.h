// Draws a row of the list of hits: the page, and the line with the hit in bold.
#pragma once

#include <QStyledItemDelegate>

namespace qor {

class HitListModel;

class HitRow : public QStyledItemDelegate {
  Q_OBJECT

 public:
  HitRow(const HitListModel& rows, QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  const HitListModel& rows_;
};

}  // namespace qor
