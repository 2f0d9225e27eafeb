// Fonts from page to page.
#include "document/running_fonts.h"

#include <algorithm>
#include <iterator>

namespace qor {

void RunningFonts::restart(const FontState& first) {
  changes_.assign(1, {1, first});
  known_ = 1;
}

const FontState& RunningFonts::at(std::int32_t page) const {
  const auto behind = std::upper_bound(
      changes_.begin() + 1, changes_.end(), page,
      [](std::int32_t number, const Change& change) { return number < change.page; });
  return std::prev(behind)->font;
}

void RunningFonts::endOfPage(std::int32_t page, const FontState& font) {
  if (page != known_) return;
  ++known_;
  if (changes_.back().font != font) changes_.push_back({known_, font});
}

}  // namespace qor
