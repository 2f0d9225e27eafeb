// Text on a grid.
#include "window_model/text_grid.h"

#include <algorithm>
#include <cmath>

namespace qor {
namespace {

constexpr double kJoined = 0.25;     // of a cell, between characters of one word
constexpr double kApart = 1.6;       // of a cell, between words of different columns
constexpr double kSameWidth = 0.02;  // of a width, between those of a fixed pitch
constexpr double kWidest = 14400;    // twips of a character that counts: ten inches
constexpr double kLastColumn = 100'000;

// A selected character that is no blank.
struct Mark {
  char32_t letter = 0;
  double left = 0;
  double right = 0;
  bool fixed = false;      // its stretch is of a fixed pitch
  std::size_t blanks = 0;  // between it and the one before
};

bool isFixed(const TextStretch& stretch) {
  const double width = stretch.edges.back() / static_cast<double>(stretch.edges.size() - 1);
  for (std::size_t i = 0; i + 1 < stretch.edges.size(); ++i)
    if (std::abs(stretch.edges[i + 1] - stretch.edges[i] - width) > width * kSameWidth)
      return false;
  return true;
}

// Calls for each selected character of the line that has a place.
template <class Use>
void forEach(const SelectedLine& selected, Use use) {
  for (const TextStretch& stretch : selected.line.stretches) {
    for (const TextSpan& span : selected.spans) {
      const std::size_t end = std::min(span.end(), stretch.end());
      for (std::size_t i = std::max(span.first, stretch.first); i < end; ++i) use(stretch, i);
    }
  }
}

// A turned text goes on where it starts.
double xOf(const TextStretch& stretch, std::size_t edge) {
  const double along = stretch.edges[edge];
  return stretch.angle == 0 ? stretch.x + along : stretch.at(0, 0).x + along;
}

std::vector<Mark> marksOf(const SelectedLine& selected) {
  std::vector<Mark> marks;
  const TextStretch* before = nullptr;
  bool fixed = false;
  std::size_t next = 0;  // character behind the last mark
  forEach(selected, [&](const TextStretch& stretch, std::size_t i) {
    if (&stretch != before) fixed = isFixed(stretch);
    before = &stretch;
    const char32_t letter = selected.line.text[i];
    if (isBlank(letter)) return;
    const std::size_t edge = i - stretch.first;
    marks.push_back({letter, xOf(stretch, edge), xOf(stretch, edge + 1), fixed, i - next});
    next = i + 1;
  });
  return marks;
}

}  // namespace

void TextGrid::measure(const SelectedLine& selected) {
  forEach(selected, [this, &selected](const TextStretch& stretch, std::size_t i) {
    const std::size_t edge = i - stretch.first;
    const double x = xOf(stretch, edge);
    left_ = has_left_ ? std::min(left_, x) : x;
    has_left_ = true;
    const double width = stretch.edges[edge + 1] - stretch.edges[edge];
    if (isBlank(selected.line.text[i]) || width < 1 || width > kWidest) return;
    const auto twips = static_cast<std::size_t>(std::lround(width));
    if (widths_.size() <= twips) widths_.resize(twips + 1);
    widths_[twips].sum += width;
    ++widths_[twips].count;
  });
}

// The mean of the commonest width and those beside it, which rounding has made of the same one.
void TextGrid::finishMeasuring() {
  const auto most = std::ranges::max_element(widths_, {}, &Width::count);
  if (most == widths_.end()) return;
  Width near;
  for (auto i = most == widths_.begin() ? most : most - 1; i != widths_.end() && i <= most + 1;
       ++i) {
    near.sum += i->sum;
    near.count += i->count;
  }
  cell_ = near.sum / static_cast<double>(near.count);
}

// A gap that no paper has is cut.
std::size_t TextGrid::columnOf(double x) const {
  return static_cast<std::size_t>(std::clamp(std::round((x - left_) / cell_), 0.0, kLastColumn));
}

std::u32string TextGrid::place(const SelectedLine& selected) const {
  std::u32string row;
  double end = 0;  // of the character before
  for (const Mark& mark : marksOf(selected)) {
    const double gap = mark.left - end;
    const bool joined = mark.blanks == 0 && gap < kJoined * cell_;
    const bool runsOn = !row.empty() && !mark.fixed && mark.blanks < 2 && gap < kApart * cell_;
    const std::size_t earliest = row.size() + (joined || row.empty() ? 0 : 1);
    row.resize(
        (joined && !row.empty()) || runsOn ? earliest : std::max(earliest, columnOf(mark.left)),
        U' ');
    row += mark.letter;
    end = mark.right;
  }
  return row;
}

}  // namespace qor
