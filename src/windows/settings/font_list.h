// How a list of font names draws each in its own face.
#pragma once

#include <QAbstractItemView>
#include <QHash>
#include <QStyledItemDelegate>

namespace qor {

// A face is loaded when its row is first seen; until then the row has the height of any text.
class FontListDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  // A child of the list.
  explicit FontListDelegate(QAbstractItemView& list);

  // lstFontsDrawItem and lstFontsMeasureItem.
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  QAbstractItemView& list_;
  mutable QHash<QString, int> heights_;  // pixels, of the faces that have been seen
};

}  // namespace qor
