// The rectangles of a row of line and block characters, each as long as it goes on from cell to
// cell: where surfaces have no dots, edges that only meet would show.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/canvas/box_drawing.h"

namespace qor {

class JoinedBoxes {
 public:
  // The next character and its cell.
  void add(char32_t character, const DotRect& cell);

  // Those of all so far; valid until the next call of the others.
  std::span<const DotRect> rects() const { return rects_; }

  // Begins another row.
  void clear();

 private:
  std::size_t join(const DotRect& rect);

  std::vector<DotRect> rects_;
  std::vector<std::size_t> before_;  // places in rects_, of the cell before
  std::vector<std::size_t> here_;
};

}  // namespace qor
