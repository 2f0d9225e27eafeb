// Rows of font names.
#include "windows/settings/font_list.h"

#include <algorithm>

namespace qor {
namespace {

constexpr int kMargin = 2;       // pixels above and below a name
constexpr int kTallestRow = 48;  // pixels: some faces have room for several lines

int rowHeight(const QFontMetrics& metrics) {
  return std::min(metrics.height() + 2 * kMargin, kTallestRow);
}

}  // namespace

FontListDelegate::FontListDelegate(QAbstractItemView& list)
    : QStyledItemDelegate(&list), list_(list) {
}

void FontListDelegate::initStyleOption(QStyleOptionViewItem* option,
                                       const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  option->font.setFamily(option->text);
  option->fontMetrics = QFontMetrics(option->font);
}

void FontListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  const QString name = index.data().toString();
  if (heights_.contains(name)) return;
  QFont face = option.font;
  face.setFamily(name);
  const int height = rowHeight(QFontMetrics(face));
  heights_.insert(name, height);
  if (height != rowHeight(option.fontMetrics))
    QMetaObject::invokeMethod(&list_, &QAbstractItemView::doItemsLayout, Qt::QueuedConnection);
}

QSize FontListDelegate::sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  return {0, heights_.value(index.data().toString(), rowHeight(option.fontMetrics))};
}

}  // namespace qor
