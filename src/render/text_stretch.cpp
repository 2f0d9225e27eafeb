// Arithmetic of characters' places.
#include "render/text_stretch.h"

#include <algorithm>
#include <cmath>

namespace qor {
namespace {

double beyond(double value, double end) {
  return std::max({0.0, -value, value - end});
}

}  // namespace

Spot TextStretch::at(double along, double across) const {
  return {x + along * std::cos(angle) + across * std::sin(angle),
          y - along * std::sin(angle) + across * std::cos(angle)};
}

TextDistance TextStretch::from(const Spot& spot) const {
  const double right = spot.x - x;
  const double down = spot.y - y;
  return {right * std::sin(angle) + down * std::cos(angle),
          right * std::cos(angle) - down * std::sin(angle)};
}

TextDistance TextStretch::outside(const TextDistance& distance) const {
  return {beyond(distance.across, height), beyond(distance.along, edges.back())};
}

std::size_t TextStretch::gapAt(double along) const {
  const auto behind = std::lower_bound(edges.begin(), edges.end(), along);
  if (behind == edges.begin()) return first;
  if (behind == edges.end()) return end();
  const bool nearer = *behind - along < along - *(behind - 1);
  return first + static_cast<std::size_t>(behind - edges.begin()) - (nearer ? 0 : 1);
}

TextBand TextStretch::band() const {
  const double length = edges.back();
  const auto [top, bottom] =
      std::minmax({at(0, 0).y, at(length, 0).y, at(0, height).y, at(length, height).y});
  return {top, bottom};
}

}  // namespace qor
