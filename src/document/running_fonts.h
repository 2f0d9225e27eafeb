// The font that runs at the start of each page. A page begins where the page before it ended, so
// that it is the same whatever was read before it, in whatever order and how often.
#pragma once

#include <cstdint>
#include <vector>

#include "document/font_state.h"

namespace qor {

class RunningFonts {
 public:
  // Forgets all pages; the first one starts with this font.
  void restart(const FontState& first);

  // The font at the start of a page, or, where the pages before it have not all been read, of the
  // nearest page before it that is known.
  const FontState& at(std::int32_t page) const;

  // Pages from the first on whose start is known; 0 before the first restart.
  std::int32_t known() const { return known_; }

  // Takes down the font at the end of a page that was read.
  void endOfPage(std::int32_t page, const FontState& font);

 private:
  // Most pages start as the one before: only those that don't are kept.
  struct Change {
    std::int32_t page;
    FontState font;
  };

  std::vector<Change> changes_;  // by page
  std::int32_t known_ = 0;
};

}  // namespace qor
