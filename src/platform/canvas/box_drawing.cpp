// Line and block characters.
#include "platform/canvas/box_drawing.h"

#include <algorithm>
#include <cmath>

#include "platform/canvas/device_space.h"

namespace qor {
namespace {

// The width of a line, as a part of its cell. Bold text keeps it, so that the lines of a table stay
// whole where a row of it is bold.
constexpr double kStroke = 0.1;

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

bool isShade(char32_t character) {
  return character >= U'░' && character <= U'▓';
}

DotRect boxCell(const DeviceSpace& space, const TextRun& run, std::size_t place) {
  const auto whole = [](double dot) { return static_cast<int>(std::lround(dot)); };
  const bool isLast = place + 1 == run.glyphs.size();
  const TextMetrics& metrics = run.font.metrics();
  const double end = isLast ? run.length : run.glyphs[place + 1].distance;
  const Dots first = space.dots(run.x + run.glyphs[place].distance, run.y);
  const Dots last = space.dots(run.x + end, run.y + metrics.height + metrics.externalLeading);
  return {whole(first.x), whole(first.y), whole(last.x), whole(last.y)};
}

BoxCharacter::BoxCharacter(char32_t character, const DotRect& cell) {
  if (const ArmsRow* row = armsOf(character)) {
    const auto stroke = static_cast<int>(std::lround((cell.right - cell.left) * kStroke));
    addArms(row->arms, cell, std::max(1, stroke));
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
