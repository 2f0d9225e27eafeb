// Columns of cells.
#include "window_model/cell_columns.h"

#include <algorithm>
#include <iterator>

#include "window_model/letter_runs.h"

namespace qor {
namespace {

using Rows = std::vector<std::u32string>;

char32_t letterAt(const std::u32string& row, std::size_t column) {
  return column < row.size() ? row[column] : U' ';
}

bool isOfRules(const std::u32string& row) {
  return std::ranges::all_of(row, [](char32_t c) { return isBlank(c) || isRule(c); });
}

// What a column of the grid is in all rows.
enum class Column { blank, bars, text };

Column columnAt(const Rows& rows, std::size_t place) {
  Column column = Column::blank;
  for (const std::u32string& row : rows) {
    const char32_t letter = letterAt(row, place);
    if (isBlank(letter)) continue;
    if (!isBar(letter)) return Column::text;
    column = Column::bars;
  }
  return column;
}

// Columns of text, and what is between them and those before.
struct CellColumns {
  TextSpan span;
  std::size_t gap = 0;  // columns of the grid
  bool barred = false;
};

std::vector<CellColumns> piecesOf(const Rows& rows) {
  std::size_t width = 0;
  for (const std::u32string& row : rows) width = std::max(width, row.size());
  std::vector<CellColumns> pieces;
  CellColumns piece;
  for (std::size_t i = 0; i <= width; ++i) {
    const Column column = i < width ? columnAt(rows, i) : Column::blank;
    if (column == Column::text) {
      if (piece.span.count++ == 0) piece.span.first = i;
      continue;
    }
    if (piece.span.count > 0) {
      pieces.push_back(piece);
      piece = {};
    }
    ++piece.gap;
    piece.barred = piece.barred || column == Column::bars;
  }
  return pieces;
}

std::u32string cellOf(const std::u32string& row, const TextSpan& span) {
  std::u32string cell = span.first < row.size() ? row.substr(span.first, span.count) : U"";
  const auto hasInk = [](char32_t c) { return !isBlank(c); };
  cell.erase(std::find_if(cell.rbegin(), cell.rend(), hasInk).base(), cell.end());
  cell.erase(cell.begin(), std::ranges::find_if(cell, hasInk));
  return cell;
}

// No other text.
bool holdsFigures(const Rows& rows, const TextSpan& span) {
  return std::ranges::all_of(rows, [&span](const std::u32string& row) {
    const std::u32string cell = cellOf(row, span);
    return cell.empty() || isFigure(cell);
  });
}

// Whether the blank between the columns parts the digits of numbers, as in 28 355,85: whatever ends
// before it goes on behind it with three of them.
bool isWithinNumbers(const Rows& rows, const TextSpan& before, const TextSpan& span) {
  return std::ranges::all_of(rows, [&](const std::u32string& row) {
    if (cellOf(row, before).empty()) return true;
    const auto isDigitAt = [&row](std::size_t place) { return isDigit(letterAt(row, place)); };
    return isDigitAt(before.end() - 1) && isDigitAt(span.first) && isDigitAt(span.first + 1) &&
           isDigitAt(span.first + 2) && !isDigitAt(span.first + 3);
  });
}

std::vector<TextSpan> columnsOf(const Rows& rows) {
  std::vector<TextSpan> columns;
  bool figuresBefore = false;
  for (const CellColumns& piece : piecesOf(rows)) {
    const bool figures = holdsFigures(rows, piece.span);
    const bool apart =
        piece.barred || piece.gap > 1 ||
        (figures && figuresBefore && !isWithinNumbers(rows, columns.back(), piece.span));
    if (columns.empty() || apart) {
      columns.push_back(piece.span);
    } else {
      columns.back().count = piece.span.end() - columns.back().first;
    }
    figuresBefore = figures;
  }
  return columns;
}

}  // namespace

CellRows cellsOf(const Rows& rows) {
  Rows lines;
  std::ranges::copy_if(rows, std::back_inserter(lines),
                       [](const std::u32string& row) { return !isOfRules(row); });
  const std::vector<TextSpan> columns = columnsOf(lines);
  CellRows cells;
  for (const std::u32string& line : lines) {
    auto& row = cells.emplace_back();
    for (const TextSpan& column : columns) row.push_back(cellOf(line, column));
  }
  return cells;
}

}  // namespace qor
