// Characters with their places on a page, in twips.
#pragma once

#include <cstddef>
#include <string>
#include <tuple>
#include <vector>

#include "base/spot.h"

namespace qor {

// Top and bottom.
struct TextBand {
  double top = 0;
  double bottom = 0;
};

// How far a point is from something, told so that the one across weighs more than any along.
struct TextDistance {
  double across = 0;
  double along = 0;

  bool operator<(const TextDistance& other) const {
    return std::tie(across, along) < std::tie(other.across, other.along);
  }
};

// Characters side by side on a straight line, which may be turned.
struct TextStretch {
  std::size_t first = 0;  // of its line, from 0
  double x = 0;           // top left of the first character's cell
  double y = 0;
  double angle = 0;  // of its direction, radians, counter-clockwise
  double height = 0;
  std::vector<double> edges;  // along its direction: one before each character, one behind the last

  std::size_t end() const { return first + edges.size() - 1; }

  // A spot at a distance along its direction and across it, and the distances of a spot.
  Spot at(double along, double across) const;
  TextDistance from(const Spot& spot) const;

  // How far outside of it these distances are.
  TextDistance outside(const TextDistance& distance) const;

  // The gap between characters that is nearest, counted in its line.
  std::size_t gapAt(double along) const;

  // What it takes of the height of the page.
  TextBand band() const;
};

struct TextLine {
  std::u32string text;
  std::vector<TextStretch> stretches;  // in order; a blank between texts of a row has none
};

}  // namespace qor
