// How a line over a page moves. Pixels count from the top of the area that shows the page.
#pragma once

#include <string>
#include <string_view>

namespace qor {

struct LineRoom {
  int pageTop = 0;  // of the page that isn't scrolled
  int height = 0;   // of the area
};

// Whether a line of that height may be dragged there: it stays below the page's top and above the
// area's end.
bool acceptsTop(const LineRoom& room, int top, int lineHeight);

// Where a line comes by keys: as far as it may be dragged, and a line beyond that comes nearer
// only.
int keyTop(const LineRoom& room, int top, int lineHeight, int way);

// The nearest place where it is in sight.
int topInSight(const LineRoom& room, int top, int lineHeight);

// Whether it is nearer to the page's top than it is high.
bool isNearTop(const LineRoom& room, int top, int lineHeight);

// As far down as a line comes by itself, at least below the page's top.
int lowestTop(const LineRoom& room, int lineHeight);

// Where it comes by a step of so many pixels; beyond its way it stays, and the page before (-1) or
// behind (1) is asked for.
struct LineStep {
  int top = 0;
  int turn = 0;
};
LineStep lineStep(const LineRoom& room, int top, int lineHeight, int way);

// What a line says of its place: its name, and millimetres with one decimal.
std::string lineHint(std::string_view name, double millimetres);

}  // namespace qor
