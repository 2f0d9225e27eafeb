// Outlines of characters.
#include "windows/view/text_marks.h"

#include <algorithm>

namespace qor {
namespace {

QPointF pixelsOf(const TextPoint& twips, const PageMapping& mapping) {
  const Spot spot = mapping.toPixels({twips.x, twips.y});
  return {spot.x, spot.y};
}

QPolygonF outline(const TextStretch& stretch, double start, double end,
                  const PageMapping& mapping) {
  QPolygonF corners;
  for (const TextPoint& corner :
       {stretch.at(start, 0), stretch.at(end, 0), stretch.at(end, stretch.height),
        stretch.at(start, stretch.height)})
    corners.append(pixelsOf(corner, mapping));
  return corners;
}

}  // namespace

std::vector<QPolygonF> outlinesOf(const TextLine& line, std::size_t first, std::size_t count,
                                  const PageMapping& mapping) {
  std::vector<QPolygonF> outlines;
  for (const TextStretch& stretch : line.stretches) {
    const std::size_t start = std::max(first, stretch.first);
    const std::size_t end = std::min(first + count, stretch.end());
    if (start >= end) continue;
    outlines.push_back(outline(stretch, stretch.edges[start - stretch.first],
                               stretch.edges[end - stretch.first], mapping));
  }
  return outlines;
}

}  // namespace qor
