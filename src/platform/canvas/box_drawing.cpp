// Line and block characters.
#include "platform/canvas/box_drawing.h"

#include <algorithm>

namespace qor {
namespace {

enum Direction { kLeft, kUp, kRight, kDown };

struct ArmsRow {
  char32_t character;
  std::uint8_t arms[4];  // left, up, right, down: 0 none, 1 single, 2 double
};

constexpr std::array<ArmsRow, 40> kArms = {{
    {U'─', {1, 0, 1, 0}}, {U'│', {0, 1, 0, 1}}, {U'┌', {0, 0, 1, 1}}, {U'┐', {1, 0, 0, 1}},
    {U'└', {0, 1, 1, 0}}, {U'┘', {1, 1, 0, 0}}, {U'├', {0, 1, 1, 1}}, {U'┤', {1, 1, 0, 1}},
    {U'┬', {1, 0, 1, 1}}, {U'┴', {1, 1, 1, 0}}, {U'┼', {1, 1, 1, 1}}, {U'═', {2, 0, 2, 0}},
    {U'║', {0, 2, 0, 2}}, {U'╒', {0, 0, 2, 1}}, {U'╓', {0, 0, 1, 2}}, {U'╔', {0, 0, 2, 2}},
    {U'╕', {2, 0, 0, 1}}, {U'╖', {1, 0, 0, 2}}, {U'╗', {2, 0, 0, 2}}, {U'╘', {0, 1, 2, 0}},
    {U'╙', {0, 2, 1, 0}}, {U'╚', {0, 2, 2, 0}}, {U'╛', {2, 1, 0, 0}}, {U'╜', {1, 2, 0, 0}},
    {U'╝', {2, 2, 0, 0}}, {U'╞', {0, 1, 2, 1}}, {U'╟', {0, 2, 1, 2}}, {U'╠', {0, 2, 2, 2}},
    {U'╡', {2, 1, 0, 1}}, {U'╢', {1, 2, 0, 2}}, {U'╣', {2, 2, 0, 2}}, {U'╤', {2, 0, 2, 1}},
    {U'╥', {1, 0, 1, 2}}, {U'╦', {2, 0, 2, 2}}, {U'╧', {2, 1, 2, 0}}, {U'╨', {1, 2, 1, 0}},
    {U'╩', {2, 2, 2, 0}}, {U'╪', {2, 1, 2, 1}}, {U'╫', {1, 2, 1, 2}}, {U'╬', {2, 2, 2, 2}},
}};

constexpr char32_t kBlocks[] = {U'▀', U'▄', U'█', U'▌', U'▐', U'░', U'▒', U'▓'};

const ArmsRow* armsOf(char32_t character) {
  const auto* row = std::find_if(kArms.begin(), kArms.end(), [character](const ArmsRow& candidate) {
    return candidate.character == character;
  });
  return row == kArms.end() ? nullptr : row;
}

// How far a line runs into the crossing: to its near stroke (-1), its middle (0) or its far stroke
// (1). `line` tells which line of the arm it is: -1 and 1 are the two of a double one, on the sides
// of `before` and `after`.
int reachOf(int line, int opposite, int before, int after) {
  if (line == 0) {
    if (opposite > 0) return 0;
    if (before == 2 && after == 2) return -1;
    return before == 2 || after == 2 ? 1 : 0;
  }
  const int near = line < 0 ? before : after;
  if (near == 2) return -1;
  if (near == 1 || opposite > 0) return 0;
  return (line < 0 ? after : before) == 2 ? 1 : 0;
}

}  // namespace

bool isBoxCharacter(char32_t character) {
  if (character < U'─' || character > U'▓') return false;
  return armsOf(character) != nullptr ||
         std::find(std::begin(kBlocks), std::end(kBlocks), character) != std::end(kBlocks);
}

BoxCharacter::BoxCharacter(char32_t character, const DotRect& cell, int stroke) {
  if (const ArmsRow* row = armsOf(character)) {
    addArms(row->arms, cell, stroke);
  } else {
    addBlock(character, cell);
  }
}

void BoxCharacter::addBlock(char32_t character, const DotRect& cell) {
  DotRect block = cell;
  switch (character) {
    case U'▀': block.bottom = (cell.top + cell.bottom) / 2; break;
    case U'▄': block.top = (cell.top + cell.bottom) / 2; break;
    case U'▌': block.right = (cell.left + cell.right) / 2; break;
    case U'▐': block.left = (cell.left + cell.right) / 2; break;
    case U'█': break;
    case U'░': block.coverage = 64; break;
    case U'▒': block.coverage = 128; break;
    case U'▓': block.coverage = 192; break;
    default: return;
  }
  add(block);
}

void BoxCharacter::addArms(const std::uint8_t* arms, const DotRect& cell, int stroke) {
  const int middleX = (cell.left + cell.right - stroke) / 2;
  const int middleY = (cell.top + cell.bottom - stroke) / 2;
  const int spread = std::max(stroke, (cell.right - cell.left + 4) / 8);
  for (int arm = kLeft; arm <= kDown; ++arm) {
    const bool level = arm == kLeft || arm == kRight;
    const bool first = arm == kLeft || arm == kUp;
    const int kind = arms[arm];
    const int opposite = arms[(arm + 2) % 4];
    const int before = arms[level ? kUp : kLeft];
    const int after = arms[level ? kDown : kRight];
    for (int line = kind == 2 ? -1 : 0; kind > 0 && line <= (kind == 2 ? 1 : 0); line += 2) {
      const int reach = reachOf(line, opposite, before, after) * spread;
      const int across = (level ? middleY : middleX) + line * spread;
      const int end = (level ? middleX : middleY) + (first ? reach + stroke : -reach);
      add(level
              ? DotRect{first ? cell.left : end, across, first ? end : cell.right, across + stroke}
              : DotRect{across, first ? cell.top : end, across + stroke,
                        first ? end : cell.bottom});
    }
  }
}

}  // namespace qor
