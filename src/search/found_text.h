// A hit among the letters around it, for lists.
#pragma once

#include <string>
#include <string_view>

#include "search/text_matcher.h"

namespace qor {

struct FoundText {
  std::u32string before;
  std::u32string hit;
  std::u32string behind;
};

// Some letters of the line on both sides of the hit; blanks at its start are left out.
FoundText foundText(std::u32string_view line, const TextSpan& hit);

}  // namespace qor
