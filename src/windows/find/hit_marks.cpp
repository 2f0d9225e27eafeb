// Marks of hits.
#include "windows/find/hit_marks.h"

#include <QPainter>
#include <optional>

#include "windows/find/text_finder.h"
#include "windows/view/page_text.h"
#include "windows/view/text_marks.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

// Multiplied with the page, so that letters stay as they are; on dark ground the frame is seen.
constexpr QColor kGround(255, 235, 90);
constexpr QColor kFrame(205, 150, 0);
constexpr QColor kPresentGround(255, 170, 60);
constexpr QColor kPresentFrame(200, 40, 0);

void mark(QPainter& painter, const QPolygonF& outline, bool present) {
  painter.setCompositionMode(QPainter::CompositionMode_Multiply);
  painter.setPen(Qt::NoPen);
  painter.setBrush(present ? kPresentGround : kGround);
  painter.drawConvexPolygon(outline);
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  painter.setPen(QPen(present ? kPresentFrame : kFrame, present ? 2 : 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawConvexPolygon(outline);
}

}  // namespace

HitMarks::HitMarks(ViewDesk& desk, PageText& text, TextFinder& finder)
    : desk_(desk), text_(text), finder_(finder) {
}

HitMarks::~HitMarks() {
  desk_.page_control->overlay().setShown(*this, false);
}

void HitMarks::update() {
  desk_.page_control->overlay().setShown(*this, finder_.isActive());
}

void HitMarks::paint(QPainter& painter, const PageMapping& mapping) {
  const TextMap* map = text_.map();
  if (map == nullptr || !finder_.isActive()) return;
  std::optional<TextHit> present;
  if (finder_.present() && finder_.present()->page == desk_.cursor.current())
    present = finder_.presentHit();
  for (const std::size_t number : linesIn(painter.clipBoundingRect(), *map, mapping)) {
    std::optional<TextLine> line;
    finder_.matcher().findIn(map->text(number), [&](const TextSpan& span) {
      if (!line) line = map->line(number);
      for (const QPolygonF& outline : outlinesOf(*line, span, mapping))
        mark(painter, outline, present == TextHit{number, span});
    });
  }
}

}  // namespace qor
