// Joining rectangles.
#include "platform/canvas/joined_boxes.h"

#include <algorithm>
#include <utility>

namespace qor {
namespace {

// Whether the second rectangle goes on where the first one ends, to the right or downwards.
bool joins(const DotRect& first, const DotRect& second) {
  const bool sameRow = first.top == second.top && first.bottom == second.bottom;
  const bool sameColumn = first.left == second.left && first.right == second.right;
  return (sameRow && first.left <= second.left && second.left <= first.right) ||
         (sameColumn && first.top <= second.top && second.top <= first.bottom);
}

}  // namespace

// Level lines go on in the next cell, and upright ones through the middle of theirs: only what the
// cell before and this one have made can go on.
void JoinedBoxes::add(char32_t character, const DotRect& cell) {
  std::swap(before_, here_);
  here_.clear();
  const BoxCharacter box(character, cell);
  for (const DotRect& rect : box.rects()) {
    // Cells of texts that turn back have nothing in them, as on bitmaps.
    if (rect.left < rect.right && rect.top < rect.bottom) here_.push_back(join(rect));
  }
}

// The place of the rectangle, or of the one that now holds it.
std::size_t JoinedBoxes::join(const DotRect& rect) {
  for (const auto* known : {&here_, &before_}) {
    for (const std::size_t number : *known) {
      DotRect& box = rects_[number];
      if (!joins(box, rect)) continue;
      box.right = std::max(box.right, rect.right);
      box.bottom = std::max(box.bottom, rect.bottom);
      return number;
    }
  }
  rects_.push_back(rect);
  return rects_.size() - 1;
}

void JoinedBoxes::clear() {
  rects_.clear();
  before_.clear();
  here_.clear();
}

}  // namespace qor
