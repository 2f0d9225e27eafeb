// Rows of hits.
#include "windows/find/hit_list_model.h"

#include <algorithm>

#include "windows/find/text_finder.h"

namespace qor {
namespace {

constexpr int kKeptRows = 500;

}  // namespace

HitListModel::HitListModel(TextFinder& finder) : finder_(finder), rows_(kKeptRows) {
}

int HitListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count_;
}

HitListModel::Row HitListModel::row(int index) const {
  if (static_cast<std::uint64_t>(index) >= finder_.hitCount()) return {};
  if (const Row* kept = rows_.object(index)) return *kept;
  const HitPlace place = finder_.search().hits().at(static_cast<std::uint64_t>(index));
  const FoundText text = finder_.textOf(place).value_or(FoundText());
  Row row = {QString::number(place.page), QString::fromStdU32String(text.before),
             QString::fromStdU32String(text.hit), QString::fromStdU32String(text.behind)};
  rows_.insert(index, new Row(row));
  return row;
}

QVariant HitListModel::data(const QModelIndex& index, int role) const {
  const bool text = role == Qt::DisplayRole || role == Qt::ToolTipRole;
  if (!text || !finder_.isActive()) return {};
  return row(index.row()).text().simplified();
}

// Hits of earlier pages may have come before those that are there.
void HitListModel::update() {
  const int count = static_cast<int>(std::min<std::uint64_t>(finder_.hitCount(), kMostRows));
  rows_.clear();
  if (count > count_) {
    beginInsertRows({}, count_, count - 1);
    count_ = count;
    endInsertRows();
  } else if (count < count_) {
    beginResetModel();
    count_ = count;
    endResetModel();
  }
  if (count_ > 0) emit dataChanged(index(0), index(count_ - 1));
}

void HitListModel::clear() {
  beginResetModel();
  rows_.clear();
  count_ = 0;
  endResetModel();
}

}  // namespace qor
