// What alignment lines ask of the page that is on view.
#pragma once

#include "windows/alignment/alignment_lines.h"

namespace qor {

class PageShow;
struct ViewDesk;

// Both must outlive what is made of it. Hints stand in the window's area.
AlignmentLines::Page pageUnderLines(ViewDesk& desk, const PageShow& pages);

}  // namespace qor
