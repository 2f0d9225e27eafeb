// A report of ten texts with places of their own in each line, and what they are as cells: texts
// and numbers in turn. For the program that writes it and those that make sheets of the same cells.
#pragma once

#include <cstdio>
#include <string>

inline constexpr int kPlacedRows = 58;  // of a page
inline constexpr int kPlacedColumns = 10;

// Millimetres: each place is in a cell of its own.
inline int placedLeft(int column) {
  return 2 + 16 * column;
}
inline double placedTop(int row) {
  return 2 + 4.5 * row;
}

inline bool isPlacedNumber(int column) {
  return column % 2 == 1;
}

// Such as "Row 7 of page 3, 0", or a number with two decimals.
inline double placedNumber(int page, int row, int column) {
  return (page * 7919 + row * 104729 + column * 1299709) % 10000000 / 100.0;
}
inline std::string placedText(int page, int row, int column) {
  char text[64];
  if (isPlacedNumber(column)) {
    std::snprintf(text, sizeof text, "%12.2f", placedNumber(page, row, column));
  } else {
    std::snprintf(text, sizeof text, "Row %d of page %d, %d", row, page, column);
  }
  return text;
}
