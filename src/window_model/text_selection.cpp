// Selections.
#include "window_model/text_selection.h"

#include <algorithm>
#include <cmath>

#include "window_model/letter_runs.h"

namespace qor {
namespace {

constexpr double kColumn = 144;  // twips that a key widens a rectangle by: ten an inch

double middle(const TextBand& band) {
  return (band.top + band.bottom) / 2;
}

TextPlace clamped(const TextMap& map, TextPlace place) {
  if (map.lineCount() == 0) return {};
  place.line = std::min(place.line, map.lineCount() - 1);
  place.column = std::min(place.column, map.text(place.line).size());
  return place;
}

// The gap of a line that is nearest to a distance from the left.
TextPlace placeIn(const TextMap& map, std::size_t number, double x) {
  const Spot spot = {x, middle(map.band(number))};
  TextPlace place = {number, 0};
  double nearest = 0;
  const TextLine line = map.line(number);
  for (const TextStretch& stretch : line.stretches) {
    const TextDistance from = stretch.from(spot);
    const double away = stretch.outside(from).along;
    if (&stretch != line.stretches.data() && away >= nearest) continue;
    nearest = away;
    place.column = stretch.gapAt(from.along);
  }
  return place;
}

// The middle of the gap's height.
Spot spotOf(const TextMap& map, const TextPlace& place) {
  if (map.lineCount() == 0) return {};
  const TextLine line = map.line(place.line);
  Spot spot = {0, middle(map.band(place.line))};
  for (const TextStretch& stretch : line.stretches) {
    const std::size_t column = std::clamp(place.column, stretch.first, stretch.end());
    spot = stretch.at(stretch.edges[column - stretch.first], stretch.height / 2);
    if (place.column <= stretch.end()) break;
  }
  return spot;
}

// Appends a character to runs.
void append(std::vector<TextSpan>& runs, std::size_t place) {
  if (runs.empty() || runs.back().end() != place) runs.push_back({place, 0});
  ++runs.back().count;
}

}  // namespace

bool TextSelection::isEmpty() const {
  return kind_ == SelectionKind::rectangle ? anchor_x_ == focus_x_ : anchor_ == focus_;
}

void TextSelection::start(const TextMap& map, SelectionKind kind, const Spot& spot) {
  kind_ = kind;
  extend(map, spot);
  anchor_ = focus_;
  anchor_x_ = focus_x_;
}

void TextSelection::extend(const TextMap& map, const Spot& spot) {
  focus_ = map.placeNear(spot);
  focus_x_ = spot.x;
}

void TextSelection::select(const TextMap& map, const TextPlace& from, const TextPlace& to) {
  kind_ = SelectionKind::lines;
  anchor_ = from;
  focus_ = to;
  keepColumn(map);
}

void TextSelection::takeWord(const TextMap& map, const Spot& spot, const LetterRules& rules) {
  const TextPlace place = map.placeNear(spot);
  if (map.lineCount() == 0) return;
  // The gap is the one behind a character whose right half is meant.
  const bool behind = place.column > 0 && spotOf(map, place).x > spot.x;
  const TextSpan run = runAt(map.text(place.line), place.column - (behind ? 1 : 0), rules);
  select(map, {place.line, run.first}, {place.line, run.end()});
}

void TextSelection::takeLine(const TextMap& map, const Spot& spot) {
  const std::size_t line = map.placeNear(spot).line;
  if (map.lineCount() == 0) return;
  select(map, {line, 0}, {line, map.text(line).size()});
}

void TextSelection::takePage(const TextMap& map) {
  if (map.lineCount() == 0) return;
  const std::size_t last = map.lineCount() - 1;
  select(map, {}, {last, map.text(last).size()});
}

void TextSelection::keepColumn(const TextMap& map) {
  focus_x_ = spotOf(map, focus_).x;
}

void TextSelection::move(const TextMap& map, SelectionMove move) {
  if (map.lineCount() == 0) return;
  focus_ = clamped(map, focus_);
  if (move == SelectionMove::up || move == SelectionMove::down) {
    const bool up = move == SelectionMove::up;
    if (up ? focus_.line == 0 : focus_.line + 1 == map.lineCount()) return;
    focus_ = placeIn(map, up ? focus_.line - 1 : focus_.line + 1, focus_x_);
  } else if (kind_ == SelectionKind::rectangle) {
    moveSide(map, move);
  } else {
    moveInLine(map, move);
    keepColumn(map);
  }
}

void TextSelection::moveSide(const TextMap& map, SelectionMove move) {
  const std::size_t length = map.text(focus_.line).size();
  switch (move) {
    case SelectionMove::left: focus_x_ -= kColumn; break;
    case SelectionMove::right: focus_x_ += kColumn; break;
    case SelectionMove::lineStart: focus_x_ = spotOf(map, {focus_.line, 0}).x; break;
    default: focus_x_ = spotOf(map, {focus_.line, length}).x; break;
  }
}

void TextSelection::moveInLine(const TextMap& map, SelectionMove move) {
  const std::size_t length = map.text(focus_.line).size();
  if (move == SelectionMove::lineStart) {
    focus_.column = 0;
  } else if (move == SelectionMove::lineEnd) {
    focus_.column = length;
  } else if (move == SelectionMove::left) {
    if (focus_.column > 0) {
      --focus_.column;
    } else if (focus_.line > 0) {
      focus_ = {focus_.line - 1, map.text(focus_.line - 1).size()};
    }
  } else if (focus_.column < length) {
    ++focus_.column;
  } else if (focus_.line + 1 < map.lineCount()) {
    focus_ = {focus_.line + 1, 0};
  }
}

void TextSelection::moveDown(const TextMap& map, double height) {
  if (map.lineCount() == 0) return;
  focus_ = map.placeNear({focus_x_, end(map).y + height});
}

Spot TextSelection::end(const TextMap& map) const {
  const TextPlace place = clamped(map, focus_);
  Spot spot = spotOf(map, place);
  if (kind_ == SelectionKind::rectangle) spot.x = focus_x_;
  return spot;
}

bool TextSelection::touches(const TextMap& map, std::size_t number) const {
  const auto [first, last] = std::minmax(anchor_.line, focus_.line);
  if (kind_ == SelectionKind::lines) return first <= number && number <= last;
  const std::size_t end = map.lineCount() - 1;
  const TextBand& one = map.band(std::min(first, end));
  const TextBand& other = map.band(std::min(last, end));
  const double height = middle(map.band(number));
  return std::min(one.top, other.top) <= height && height <= std::max(one.bottom, other.bottom);
}

std::vector<std::size_t> TextSelection::lines(const TextMap& map) const {
  std::vector<std::size_t> numbers;
  for (std::size_t i = 0; i < map.lineCount(); ++i)
    if (touches(map, i)) numbers.push_back(i);
  if (kind_ == SelectionKind::rectangle) {
    std::stable_sort(numbers.begin(), numbers.end(), [&map](std::size_t a, std::size_t b) {
      return map.band(a).top < map.band(b).top;
    });
  }
  return numbers;
}

std::vector<TextSpan> TextSelection::spansOf(const TextMap& map, std::size_t number,
                                             const TextLine& line) const {
  if (isEmpty() || !touches(map, number)) return {};
  if (kind_ == SelectionKind::rectangle) return inRectangle(line);
  const TextSpan span = inReadingOrder(number, line.text.size());
  return span.count == 0 ? std::vector<TextSpan>() : std::vector<TextSpan>{span};
}

TextSpan TextSelection::inReadingOrder(std::size_t number, std::size_t length) const {
  const auto [from, to] = std::minmax(anchor_, focus_);
  const std::size_t first = number == from.line ? std::min(from.column, length) : 0;
  const std::size_t end = number == to.line ? std::min(to.column, length) : length;
  return {first, end - first};
}

// A character is in it with its middle.
std::vector<TextSpan> TextSelection::inRectangle(const TextLine& line) const {
  const auto [left, right] = std::minmax(anchor_x_, focus_x_);
  std::vector<TextSpan> runs;
  for (const TextStretch& stretch : line.stretches) {
    for (std::size_t i = 0; i + 1 < stretch.edges.size(); ++i) {
      const double along = (stretch.edges[i] + stretch.edges[i + 1]) / 2;
      const double x = stretch.at(along, stretch.height / 2).x;
      if (left < x && x < right) append(runs, stretch.first + i);
    }
  }
  return runs;
}

}  // namespace qor
