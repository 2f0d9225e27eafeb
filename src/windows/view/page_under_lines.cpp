// Pages under lines.
#include "windows/view/page_under_lines.h"

#include <algorithm>
#include <map>

#include "base/units.h"
#include "document/vdata.h"
#include "document/vdocpage.h"
#include "windows/view/page_overlay.h"
#include "windows/view/page_show.h"
#include "windows/view/passing_hint.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

constexpr double kUsualRow = 18;  // pixels, where no page is there to be asked

// Twips of the height that most of the page's lines have, 0 where none has one.
std::int32_t rowOf(const VDocPage& page) {
  std::map<std::int32_t, int> counts;
  for (const VDocStr& line : page.lines()) {
    for (const VData* item = line.FirstItem; item != nullptr; item = item->NextItem)
      if (item->heightOnLine() > 0) ++counts[item->heightOnLine()];
  }
  const auto most = std::max_element(counts.begin(), counts.end(),
                                     [](auto& a, auto& b) { return a.second < b.second; });
  return most == counts.end() ? 0 : most->first;
}

double rowHeight(const ViewDesk& desk, const PageShow& pages) {
  const auto mapping = desk.page_control->overlay().mapping();
  const VDocPage* page = pages.loadedPage();
  const std::int32_t twips = page == nullptr ? 0 : rowOf(*page);
  if (!mapping || twips == 0) return kUsualRow;
  return std::max(1.0, mapping->toPixels({0, double(twips)}).y - mapping->toPixels({0, 0}).y);
}

// The view of a single page starts with its sheet.
std::optional<double> millimetresAt(const ViewDesk& desk, int y) {
  const PageOverlay& overlay = desk.page_control->overlay();
  const auto mapping = overlay.mapping();
  if (!mapping) return std::nullopt;
  const int below = overlay.mapFrom(desk.ui.pScroll->viewport(), QPoint(0, y)).y();
  const double twips = mapping->toTwips({0, double(below)}).y - mapping->toTwips({0, 0}).y;
  return millimetresFromTwips(twips);
}

}  // namespace

AlignmentLines::Page pageUnderLines(ViewDesk& desk, const PageShow& pages) {
  AlignmentLines::Page page;
  page.room = [&desk] {
    return LineRoom{desk.page_control->y(), desk.ui.pScroll->viewport()->height()};
  };
  page.rowHeight = [&desk, &pages] { return rowHeight(desk, pages); };
  page.tell = [&desk](const QString& text) { desk.hint->tell(text); };
  page.millimetresAt = [&desk](int y) { return millimetresAt(desk, y); };
  return page;
}

}  // namespace qor
