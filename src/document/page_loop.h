// The one walk over the pages of a document for all that is told of them: a page is loaded, used
// and let go before the next one.
#pragma once

#include <cstdint>

#include "base/errors.h"
#include "document/loaded_page.h"
#include "document/page_progress.h"

namespace qor {

// Calls `use` with the numbers from 1 on to `count`. Throws StoppedError where `progress`, which
// may be empty, says so.
template <class Use>
void forEachNumber(std::int32_t count, const PageProgress& progress, Use use) {
  for (std::int32_t number = 1; number <= count; ++number) {
    use(number);
    if (progress && !progress(number, count)) throw StoppedError();
  }
}

// Calls `use` with each page whose number is wanted; it begins with the font that those before it
// leave. Throws as forEachNumber and LoadedPage, and
// where the report changed meanwhile as VDoc::RequireSameFile.
template <class Wanted, class Use>
void forEachPage(VDoc& doc, PageMode mode, const PageProgress& progress, Wanted wanted, Use use) {
  if (doc.PageCount == 0) return;
  const auto file = VDoc::OpenFile();
  if (!file) throw NumberedError(kErrorOpenDocument, AppOptions.FileName);
  forEachNumber(doc.PageCount, progress, [&](std::int32_t number) {
    if (!wanted(number)) return;
    doc.ReadUpTo(number, *file);
    const LoadedPage page(doc, number, *file, mode);
    use(*page);
  });
  doc.RequireSameFile();
}

// Calls `use` with each line of a page that is loaded.
template <class Use>
void forEachLine(const VDocPage& page, Use use) {
  for (const VDocStr& line : page.lines()) use(line);
}

}  // namespace qor
