// Places on devices.
#include "platform/canvas/device_space.h"

#include <algorithm>
#include <cmath>

#include "base/units.h"

namespace qor {
namespace {

constexpr double kBeyond = 1024.0 / kPictureDpi;  // inches
constexpr Dots kCurveBeyond = {100000, 100000};
constexpr double kWidestPen = 1024;  // dots

// Cuts a line to the stretch from -beyond to size + beyond of one axis; `u` runs along that axis,
// `v` along the other. False if nothing is left.
bool cutAlong(double& u1, double& v1, double& u2, double& v2, std::int32_t size, double beyond) {
  const double low = -beyond;
  const double high = size + beyond;
  if (std::max(u1, u2) < low || std::min(u1, u2) > high) return false;
  const double slope = u1 == u2 ? 0 : (v2 - v1) / (u2 - u1);
  const auto cut = [&](double& u, double& v) {
    const double kept = std::clamp(u, low, high);
    v += (kept - u) * slope;
    u = kept;
  };
  cut(u1, v1);
  cut(u2, v2);
  return true;
}

}  // namespace

DeviceSpace::DeviceSpace(Point size, Point dotsPerInch)
    : size_(size),
      dots_per_inch_(dotsPerInch),
      mapping_{double(dotsPerInch.x), double(dotsPerInch.y), 0, 0} {
}

Dots DeviceSpace::dots(double x, double y) const {
  return {realDotsFromTwips(x, mapping_.dpiX) + mapping_.originX,
          realDotsFromTwips(y, mapping_.dpiY) + mapping_.originY};
}

Dots DeviceSpace::dotsPerUnit() const {
  return {realDotsPerTwip(mapping_.dpiX), realDotsPerTwip(mapping_.dpiY)};
}

double DeviceSpace::dotsAcross(double units) const {
  return realDotsFromTwips(units, mapping_.dpiX);
}

Dots DeviceSpace::beyond() const {
  return {kBeyond * dots_per_inch_.x, kBeyond * dots_per_inch_.y};
}

DotBox DeviceSpace::boxWithin(const Rect& rect, Dots beyond) const {
  const auto near = [beyond](Dots place, Point size) {
    return Dots{std::clamp(place.x, -beyond.x, size.x + beyond.x),
                std::clamp(place.y, -beyond.y, size.y + beyond.y)};
  };
  const Dots first = near(dots(rect.left, rect.top), size_);
  const Dots last = near(dots(rect.right, rect.bottom), size_);
  return {std::min(first.x, last.x), std::min(first.y, last.y), std::max(first.x, last.x),
          std::max(first.y, last.y)};
}

DotBox DeviceSpace::box(const Rect& rect) const {
  return boxWithin(rect, beyond());
}

DotBox DeviceSpace::textClip(const Rect& rect) const {
  DotBox clip = box(rect);
  if (rect.right <= rect.left) {
    clip.left = -beyond().x;
    clip.right = size_.x + beyond().x;
  }
  if (rect.bottom <= rect.top) {
    clip.top = -beyond().y;
    clip.bottom = size_.y + beyond().y;
  }
  return clip;
}

DotBox DeviceSpace::curveBox(const Rect& rect) const {
  return boxWithin(rect, kCurveBeyond);
}

Dots DeviceSpace::cornerRadii(const DotBox& box, std::int32_t width, std::int32_t height) const {
  const double x = std::min(realDotsFromTwips(width, mapping_.dpiX), box.width()) / 2;
  const double y = std::min(realDotsFromTwips(height, mapping_.dpiY), box.height()) / 2;
  return x > 0 && y > 0 ? Dots{x, y} : Dots{};
}

bool DeviceSpace::cutLine(Dots& from, Dots& to) const {
  return cutAlong(from.x, from.y, to.x, to.y, size_.x, beyond().x) &&
         cutAlong(from.y, from.x, to.y, to.x, size_.y, beyond().y);
}

double DeviceSpace::penWidth(const Pen& pen) const {
  return std::clamp(dotsAcross(pen.width), 1.0, kWidestPen);
}

bool DeviceSpace::shows(const TextRun& run) const {
  // Negative space between characters turns a text back on itself.
  const double overhang = 2.0 * run.font.metrics().height;
  const double reach = std::abs(run.length) + overhang;
  const double before = run.level() && run.length >= 0 ? overhang : reach;
  const double beside = run.level() ? overhang : reach;
  const Dots first = dots(run.x - before, run.y - beside);
  const Dots last = dots(run.x + reach, run.y + beside);
  return last.x >= 0 && last.y >= 0 && first.x <= size_.x && first.y <= size_.y;
}

}  // namespace qor
