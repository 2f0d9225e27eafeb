// Selected characters as plain text whose columns stand under each other: on a grid of cells as
// wide as most of the characters are. Text of a fixed pitch keeps its columns; words of other fonts
// start as near to their places as they can, and run on where a single blank is between them.
#pragma once

#include <string>
#include <vector>

#include "render/text_stretch.h"
#include "search/text_matcher.h"

namespace qor {

struct SelectedLine {
  TextLine line;
  std::vector<TextSpan> spans;
};

class TextGrid {
 public:
  // Measures what will be placed. The first column is that of the leftmost character.
  void measure(const SelectedLine& selected);
  void finishMeasuring();

  // A line of the grid, without blanks at its end.
  std::u32string place(const SelectedLine& selected) const;

 private:
  struct Width {
    double sum = 0;
    std::size_t count = 0;
  };

  std::size_t columnOf(double x) const;

  std::vector<Width> widths_;  // by twips
  double left_ = 0;
  bool has_left_ = false;
  double cell_ = 1;
};

}  // namespace qor
