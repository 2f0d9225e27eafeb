// Writes a report of placed texts, ten in each line:
//   make_placed PAGES
#include <cstdio>
#include <cstdlib>

#include "placed_cells.h"

int main(int argc, char** argv) {
  const int pages = argc == 2 ? std::atoi(argv[1]) : 0;
  if (pages <= 0) {
    std::fputs("make_placed PAGES\n", stderr);
    return 2;
  }
  for (int page = 1; page <= pages; ++page) {
    for (int row = 0; row < kPlacedRows; ++row) {
      for (int column = 0; column < kPlacedColumns; ++column)
        std::printf("<text left=%d top=%.1f tc=\"%s\"/>", placedLeft(column), placedTop(row),
                    placedText(page, row, column).c_str());
      std::fputs("\r\n", stdout);
    }
    std::fputs("\f\r\n", stdout);
  }
}
