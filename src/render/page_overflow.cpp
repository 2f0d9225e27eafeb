// Text beyond the sheet, found by a canvas that only looks where texts go.
#include "render/page_overflow.h"

#include <algorithm>
#include <map>

#include "platform/fonts/fonts.h"
#include "render/page_walk.h"
#include "render/silent_canvas.h"

namespace qor {
namespace {

class OverflowCanvas : public SilentCanvas {
 public:
  explicit OverflowCanvas(const Rect& sheet) : sheet_(sheet) {}

  PageOverflow overflow() const {
    PageOverflow result;
    for (const auto& [y, row] : rows_) {
      result.lines += row.below ? 1 : 0;
      result.columns = std::max(result.columns, row.columns);
    }
    return result;
  }

 protected:
  void paintText(const TextRun& run) override {
    const auto last = run.text.find_last_not_of(U' ');
    if (last == std::u32string_view::npos || run.record.Escapement != 0) return;
    const std::int32_t columns = columnsBeyond(run, last + 1);
    const bool below = run.y + run.font.metrics().ascent > sheet_.bottom;
    if (columns == 0 && !below) return;
    Row& row = rows_[run.y];
    row.below = row.below || below;
    row.columns += columns;
  }

 private:
  struct Row {
    bool below = false;
    std::int32_t columns = 0;
  };

  // How many of the first `count` characters end beyond the right edge.
  std::int32_t columnsBeyond(const TextRun& run, std::size_t count) const {
    const double room = sheet_.right - run.x;
    const auto ends = [&](std::size_t i) {
      return i + 1 < run.glyphs.size() ? run.glyphs[i + 1].distance : run.length;
    };
    std::int32_t columns = 0;
    while (count > 0 && ends(count - 1) > room) --count, ++columns;
    return columns;
  }

  Rect sheet_;
  std::map<double, Row> rows_;  // those beyond the sheet, by their tops
};

}  // namespace

PageOverflow overflowOf(VDocPage& page, const Rect& sheet) {
  OverflowCanvas canvas(sheet);
  DrawPage(page, canvas);
  return canvas.overflow();
}

}  // namespace qor
