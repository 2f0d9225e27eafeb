// Arithmetic of lines.
#include "window_model/line_moves.h"

#include <algorithm>
#include <cmath>

#include "platform/system/locale.h"

namespace qor {
namespace {

constexpr int kLowest = 872;  // pixels; here the page behind comes, however high the area is

}  // namespace

bool acceptsTop(const LineRoom& room, int top, int lineHeight) {
  return top > room.pageTop && top + lineHeight < room.height;
}

int keyTop(const LineRoom& room, int top, int lineHeight, int way) {
  const int highest = room.pageTop + 1;
  const int lowest = std::max(highest, room.height - lineHeight - 1);
  const int next = std::clamp(top + way, highest, lowest);
  return (next > top) == (way > 0) ? next : top;
}

int topInSight(const LineRoom& room, int top, int lineHeight) {
  return std::clamp(top, 0, std::max(0, room.height - lineHeight));
}

bool isNearTop(const LineRoom& room, int top, int lineHeight) {
  return top < room.pageTop + lineHeight;
}

int lowestTop(const LineRoom& room, int lineHeight) {
  return std::max(room.pageTop + 1, std::min(kLowest, room.height - lineHeight - 1));
}

LineStep lineStep(const LineRoom& room, int top, int lineHeight, int way) {
  const int next = top + way;
  if (way < 0 && next <= room.pageTop) return {top, -1};
  if (way > 0 && next > lowestTop(room, lineHeight)) return {top, 1};
  return {next, 0};
}

std::string lineHint(std::string_view name, double millimetres) {
  const long tenths = std::lround(std::abs(millimetres) * 10);
  const std::string sign = millimetres < 0 && tenths > 0 ? "-" : "";
  return std::string(name) + " Y = " + sign + std::to_string(tenths / 10) + decimalSeparator() +
         std::to_string(tenths % 10) + " mm\n";
}

}  // namespace qor
