// Filling sheets.
#include "platform/workbook/sheet.h"

#include <algorithm>

namespace qor {

void Sheet::add(const Cell& cell) {
  const bool follows = cells_.empty() || cells_.back().place() < cell.place();
  if (follows && ordered_ == cells_.size()) ++ordered_;
  cells_.push_back(cell);
}

void Sheet::writeText(std::uint32_t row, std::uint32_t column, std::uint32_t format,
                      std::string_view utf8) {
  add({row, column, format, static_cast<std::uint32_t>(utf8.size()), texts_.size()});
  texts_ += utf8;
}

void Sheet::writeNumber(std::uint32_t row, std::uint32_t column, std::uint32_t format,
                        double number) {
  add({row, column, format, Cell::kNumber, std::bit_cast<std::uint64_t>(number)});
}

const std::vector<Cell>& Sheet::cells() const {
  if (ordered_ == cells_.size()) return cells_;
  const auto before = [](const Cell& a, const Cell& b) { return a.place() < b.place(); };
  const auto late = cells_.begin() + static_cast<std::ptrdiff_t>(ordered_);
  std::stable_sort(late, cells_.end(), before);
  std::inplace_merge(cells_.begin(), late, cells_.end(), before);
  // Of those at one place the last one stays.
  const auto same = [](const Cell& a, const Cell& b) { return a.place() == b.place(); };
  const auto kept = std::unique(cells_.rbegin(), cells_.rend(), same).base();
  replaced_ += kept - cells_.begin();
  cells_.erase(cells_.begin(), kept);
  ordered_ = cells_.size();
  return cells_;
}

Sheet::Extent Sheet::extent() const {
  const std::vector<Cell>& all = cells();
  if (all.empty()) return {};
  Extent extent = {all.front().row, all.back().row + 1, all.front().column, 0};
  for (const Cell& cell : all) {
    extent.firstColumn = std::min(extent.firstColumn, cell.column);
    extent.endColumn = std::max(extent.endColumn, cell.column + 1);
  }
  return extent;
}

std::int64_t Sheet::replacedCells() const {
  cells();
  return replaced_;
}

// A quarter more than the font, in whole quarters of a point, as spreadsheets do it by themselves.
void Sheet::raiseRow(std::uint32_t row, std::int32_t fontSize) {
  const auto height = static_cast<std::uint32_t>(fontSize) * 25;
  if (height <= kUsualRowHeight) return;
  std::uint32_t& known = heights_[row];
  known = std::max(known, height);
}

void Sheet::clear() {
  cells_.clear();
  heights_.clear();
  replaced_ = 0;
  ordered_ = 0;
  texts_.clear();
  pictures_.clear();
  widths_.clear();
}

}  // namespace qor
