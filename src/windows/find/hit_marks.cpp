// Marks of hits.
#include "windows/find/hit_marks.h"

#include <QPainter>

#include "windows/find/qt_letters.h"
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
  if (on_view_) desk_.page_control->overlay().remove(*this);
}

void HitMarks::update() {
  PageOverlay& overlay = desk_.page_control->overlay();
  const bool wanted = finder_.isActive();
  if (std::exchange(on_view_, wanted) != wanted)
    wanted ? overlay.add(*this) : overlay.remove(*this);
  if (!wanted || (matcher_ && query_ == finder_.query())) return overlay.update();
  query_ = finder_.query();
  matcher_.emplace(query_, kQtLetters, finder_.codePage());
  overlay.update();
}

void HitMarks::paint(QPainter& painter, const PageMapping& mapping) {
  const TextMap* map = text_.map();
  if (map == nullptr || !matcher_) return;
  for (const std::size_t line : linesIn(painter.clipBoundingRect(), *map, mapping))
    markLine(painter, mapping, line);
}

void HitMarks::markLine(QPainter& painter, const PageMapping& mapping, std::size_t line) {
  const TextMap& map = *text_.map();
  std::optional<TextLine> layout;
  const auto present = finder_.presentHit();
  const bool onPage = present && finder_.present()->page == desk_.cursor.current();
  matcher_->findIn(map.text(line), [&](const TextSpan& span) {
    if (!layout) layout = map.line(line);
    const bool isPresent = onPage && *present == TextHit{line, span};
    for (const QPolygonF& outline : outlinesOf(*layout, span, mapping))
      mark(painter, outline, isPresent);
  });
}

}  // namespace qor
