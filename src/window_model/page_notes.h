// What the window tells of a page that its picture doesn't show.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "document/text_kind.h"
#include "render/page_overflow.h"

namespace qor {

class VDoc;
class VDocPage;

struct PageNotes {
  PageOverflow overflow;            // of a page on its sheet
  std::int32_t lettersLeftOut = 0;  // by the code page
  int codePage = 0;                 // of the report

  bool hasOverflow() const { return overflow.lines > 0 || overflow.columns > 0; }
};

// Looks at the loaded page. Throws what LoadCodePage throws.
PageNotes notesOf(VDocPage& page);

// Such as "12 lines and 98 columns are outside the sheet: wide view", in the language of the
// interface; empty where there is nothing to tell.
std::string textOf(const PageNotes& notes);

// What is told of the whole report, a line each: that it is no text of the report generator, and
// that a set has chosen another code page than the command line.
std::string reportNote(const VDoc& doc, const TextKind& firstPage);

// The code pages that the window offers, by their numbers, and how it names one: "1251 - Windows".
const std::vector<int>& offeredCodePages();
std::string codePageName(int codePage);

}  // namespace qor
