// Lines and characters in the view.
#include "windows/view/text_marks.h"

#include <algorithm>

#include "render/text_map.h"
#include "search/text_matcher.h"
#include "window_model/page_mapping.h"

namespace qor {
namespace {

QPolygonF outline(const TextStretch& stretch, double start, double end,
                  const PageMapping& mapping) {
  QPolygonF corners;
  for (const Spot& corner : {stretch.at(start, 0), stretch.at(end, 0),
                             stretch.at(end, stretch.height), stretch.at(start, stretch.height)}) {
    const Spot pixel = mapping.toPixels(corner);
    corners.append({pixel.x, pixel.y});
  }
  return corners;
}

}  // namespace

std::vector<std::size_t> linesIn(const QRectF& seen, const TextMap& map,
                                 const PageMapping& mapping) {
  const double top = mapping.toTwips({0, seen.top()}).y;
  const double bottom = mapping.toTwips({0, seen.bottom()}).y;
  std::vector<std::size_t> lines;
  for (std::size_t i = 0; i < map.lineCount(); ++i) {
    const TextBand& band = map.band(i);
    if (band.bottom >= top && band.top <= bottom) lines.push_back(i);
  }
  return lines;
}

std::vector<QPolygonF> outlinesOf(const TextLine& line, const TextSpan& span,
                                  const PageMapping& mapping) {
  std::vector<QPolygonF> outlines;
  for (const TextStretch& stretch : line.stretches) {
    const std::size_t start = std::max(span.first, stretch.first);
    const std::size_t end = std::min(span.end(), stretch.end());
    if (start >= end) continue;
    outlines.push_back(outline(stretch, stretch.edges[start - stretch.first],
                               stretch.edges[end - stretch.first], mapping));
  }
  return outlines;
}

}  // namespace qor
