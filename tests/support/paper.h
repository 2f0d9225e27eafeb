// What is drawn on paper, read back from its PDF by programs of others.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/canvas/canvas.h"
#include "platform/pictures/picture.h"
#include "support/temporary_directory.h"

namespace qor::test {

using DrawOn = std::function<void(Canvas&)>;

// A sheet of 210 by 297 mm on a printer of this resolution, as the file "paper.pdf" of the
// directory. The canvas has the printer's dots and a twip a unit, unless `draw` tells otherwise.
void printOn(const TemporaryDirectory& place, Point dotsPerInch, const DrawOn& draw);

// Each letter of the page: its place (the pen's, twips from the upper left corner, y downwards),
// and the way across and up of an em, in twips.
struct PaperLetter {
  char32_t letter = 0;
  double x = 0, y = 0;
  double acrossX = 0, acrossY = 0;
  double upX = 0, upY = 0;
};
std::vector<PaperLetter> lettersOf(const TemporaryDirectory& place);

// The page as dots: from the paper, and from a bitmap that is drawn on alike.
Picture paperDots(const TemporaryDirectory& place, int dpi);
Picture bitmapDots(int dpi, const DrawOn& draw);

// How many dots of the one have no like within a dot of their place in the other: none of their
// components may lie more than `tolerance` beyond those of the nine dots there.
int strangers(const Picture& here, const Picture& there, int tolerance);

}  // namespace qor::test
