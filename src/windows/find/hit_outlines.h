// Hits on a page as they are marked over it.
#pragma once

#include <QPolygonF>
#include <optional>
#include <vector>

#include "search/page_search.h"

class QPainter;
class QRectF;

namespace qor {

class PageMapping;
class TextMap;

struct HitOutlines {
  std::vector<QPolygonF> present;
  std::vector<QPolygonF> others;
};

// Of the hits whose lines are seen in a rectangle of the view, pixels.
HitOutlines outlinesOf(const TextMap& map, TextMatcher& matcher, const QRectF& seen,
                       const PageMapping& mapping, const std::optional<TextHit>& present);

void paintHits(QPainter& painter, const HitOutlines& hits);

}  // namespace qor
