// Rows of hits.
#include "windows/find/hit_row.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

#include "windows/find/hit_list_model.h"

namespace qor {
namespace {

constexpr int kGap = 4;         // pixels, at the edges of the row
constexpr int kPageDigits = 5;  // room for the number of the page
constexpr int kMostOfHit = 24;  // letters of a long one
constexpr int kHitPlace = 2;    // the hit begins in the first half of the row

// Draws the text and gives where it ends.
int drawn(QPainter& painter, const QString& text, const QRect& row, int left) {
  const QRect place(left, row.top(), row.right() - left, row.height());
  if (place.width() > 0) painter.drawText(place, Qt::AlignVCenter | Qt::TextSingleLine, text);
  return left + painter.fontMetrics().horizontalAdvance(text);
}

// Runs of blanks as one, also at the end.
QString tidy(const QString& text) {
  return (text + '|').simplified().chopped(1);
}

}  // namespace

HitRow::HitRow(const HitListModel& rows, QObject* parent)
    : QStyledItemDelegate(parent), rows_(rows) {
}

void HitRow::paint(QPainter* painter, const QStyleOptionViewItem& option,
                   const QModelIndex& index) const {
  QStyleOptionViewItem ground = option;
  initStyleOption(&ground, index);
  ground.text.clear();
  const QStyle* style = ground.widget != nullptr ? ground.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &ground, painter, ground.widget);

  const HitListModel::Row row = rows_.row(index.row());
  const bool chosen = option.state.testFlag(QStyle::State_Selected);
  const QRect place = option.rect.adjusted(kGap, 0, -kGap, 0);
  painter->save();
  painter->setClipRect(place);
  painter->setPen(option.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text));
  const QFontMetrics metrics = option.fontMetrics;
  const int pageRoom = metrics.horizontalAdvance(QString(kPageDigits, '0'));
  painter->drawText(QRect(place.left(), place.top(), pageRoom, place.height()),
                    Qt::AlignVCenter | Qt::AlignRight, row.page);
  const int left = place.left() + pageRoom + 2 * kGap;
  const int room = std::max(0, place.right() - left) / kHitPlace;
  int end = drawn(*painter, metrics.elidedText(tidy(row.before), Qt::ElideLeft, room), place, left);
  QFont bold = option.font;
  bold.setBold(true);
  painter->setFont(bold);
  end = drawn(*painter, row.hit.left(kMostOfHit), place, end);
  painter->setFont(option.font);
  drawn(*painter, ('|' + row.behind).simplified().mid(1), place, end);
  painter->restore();
}

}  // namespace qor
