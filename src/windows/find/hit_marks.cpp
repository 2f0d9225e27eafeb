// Marks of hits.
#include "windows/find/hit_marks.h"

#include <QPainter>

#include "windows/find/hit_outlines.h"
#include "windows/find/text_finder.h"
#include "windows/view/page_text.h"
#include "windows/view/view_desk.h"

namespace qor {
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
  paintHits(painter, outlinesOf(*map, finder_.matcher(), painter.clipBoundingRect(), mapping,
                                finder_.presentHitOn(desk_.cursor.current())));
}

}  // namespace qor
