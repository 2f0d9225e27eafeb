// Marks of hits.
#include "windows/find/hit_outlines.h"

#include <QPainter>

#include "render/text_map.h"
#include "windows/view/text_marks.h"

namespace qor {
namespace {

struct MarkColours {
  QColor ground;
  QColor frame;
  int width;  // of the frame, pixels
};

const MarkColours kPresent = {QColor(255, 170, 60), QColor(200, 40, 0), 2};
const MarkColours kOther = {QColor(255, 235, 90), QColor(205, 150, 0), 1};

void paintAll(QPainter& painter, const std::vector<QPolygonF>& outlines) {
  for (const QPolygonF& outline : outlines) painter.drawConvexPolygon(outline);
}

// The ground is multiplied with the page, so that letters stay as they are; on dark ground the
// frame is seen.
void paint(QPainter& painter, const std::vector<QPolygonF>& outlines, const MarkColours& colours) {
  painter.setCompositionMode(QPainter::CompositionMode_Multiply);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colours.ground);
  paintAll(painter, outlines);
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  painter.setPen(QPen(colours.frame, colours.width));
  painter.setBrush(Qt::NoBrush);
  paintAll(painter, outlines);
}

}  // namespace

HitOutlines outlinesOf(const TextMap& map, TextMatcher& matcher, const QRectF& seen,
                       const PageMapping& mapping, const std::optional<TextHit>& present) {
  HitOutlines hits;
  for (const std::size_t number : linesIn(seen, map, mapping)) {
    std::optional<TextLine> line;
    matcher.findIn(map.text(number), [&](const TextSpan& span) {
      if (!line) line = map.line(number);
      auto& outlines = present == TextHit{number, span} ? hits.present : hits.others;
      for (QPolygonF& outline : outlinesOf(*line, span, mapping))
        outlines.push_back(std::move(outline));
    });
  }
  return hits;
}

void paintHits(QPainter& painter, const HitOutlines& hits) {
  paint(painter, hits.others, kOther);
  paint(painter, hits.present, kPresent);
}

}  // namespace qor
