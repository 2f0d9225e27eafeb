// What a text of a report is as the value of a cell.
#pragma once

#include <cstdint>
#include <string_view>

namespace qor {

struct CellValue {
  enum class Kind { blank, whole, decimal, date, text };

  Kind kind = Kind::text;
  double number = 0;  // of a date, days as spreadsheets count them
  int decimals = 0;   // of a decimal number, 1 to 10
};

// A number starts with a blank, as reports set their figures to the right, and holds nothing but
// blanks, digits, "." and ",". A date reads "31/12/2024". What no cell can hold as a number or a
// date is text.
CellValue cellValueOf(std::string_view text);

// The day as spreadsheets count them, from 1 for the first of 1900, and with a 29th of February in
// that year; 0 for a day that is none, or before.
std::int32_t sheetDay(int day, int month, int year);

}  // namespace qor
