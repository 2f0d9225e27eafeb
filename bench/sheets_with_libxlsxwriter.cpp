// The cells of a report of make_report, by a bare loop over libxlsxwriter, a sheet a page:
//   sheets_with_libxlsxwriter REPORT.txt OUT.xlsx
//   sheets_with_libxlsxwriter --placed PAGES OUT.xlsx
#include <cstdlib>
#include <string>

#include <xlsxwriter.h>

#include "placed_cells.h"
#include "report_lines.h"

namespace {

std::string trimmed(std::string_view line) {
  const auto last = line.find_last_not_of(' ');
  return last == std::string_view::npos ? " " : std::string(line.substr(0, last + 1));
}

class Book {
 public:
  explicit Book(const char* path)
      : book_(workbook_new(path)),
        text_(workbook_add_format(book_)),
        number_(workbook_add_format(book_)) {
    for (lxw_format* format : {text_, number_}) format_set_font_name(format, "Courier New");
    format_set_num_format(number_, "#,##0.00");
    addSheet();
  }

  void addSheet() { sheet_ = workbook_add_worksheet(book_, nullptr); }
  void fit(lxw_col_t column, double width) {
    worksheet_set_column(sheet_, column, column, width, nullptr);
  }
  void write(lxw_row_t row, lxw_col_t column, const std::string& text) {
    worksheet_write_string(sheet_, row, column, text.c_str(), text_);
  }
  void write(lxw_row_t row, lxw_col_t column, double number) {
    worksheet_write_number(sheet_, row, column, number, number_);
  }
  bool close() { return workbook_close(book_) == LXW_NO_ERROR; }

 private:
  lxw_workbook* book_;
  lxw_format* text_;
  lxw_format* number_;
  lxw_worksheet* sheet_ = nullptr;
};

bool writeLines(const char* report, const char* target) {
  Book book(target);
  lxw_row_t row = 0;
  bool ended = false;
  forEachLine(
      readAll(report),
      [&](std::string_view line, double) {
        if (ended) book.addSheet();
        ended = false;
        book.write(row++, 0, trimmed(line));
      },
      [&] {
        book.fit(0, 78);
        row = 0;
        ended = true;
      });
  return book.close();
}

bool writePlaced(int pages, const char* target) {
  Book book(target);
  for (int page = 1; page <= pages; ++page) {
    if (page > 1) book.addSheet();
    for (int row = 0; row < kPlacedRows; ++row) {
      for (int column = 0; column < kPlacedColumns; ++column) {
        const auto place = static_cast<lxw_col_t>(column + 1);
        const auto line = static_cast<lxw_row_t>(row + 1);
        if (isPlacedNumber(column)) {
          book.write(line, place, placedNumber(page, row, column));
        } else {
          book.write(line, place, placedText(page, row, column));
        }
      }
    }
    for (lxw_col_t column = 0; column < kPlacedColumns; ++column) book.fit(column, 18);
  }
  return book.close();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 4 && std::string_view(argv[1]) == "--placed")
    return writePlaced(std::atoi(argv[2]), argv[3]) ? 0 : 1;
  if (argc == 3) return writeLines(argv[1], argv[2]) ? 0 : 1;
  std::fputs("sheets_with_libxlsxwriter REPORT.txt|--placed PAGES OUT.xlsx\n", stderr);
  return 2;
}
