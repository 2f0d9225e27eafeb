// The one walk over the pages of a document for all that is told of them: a page is loaded, used
// and let go before the next one.
#pragma once

#include <functional>

#include "base/errors.h"
#include "document/loaded_page.h"

namespace qor {

// Called behind each page with its number, from 1, and how many there are. False stops the walk.
using PageProgress = std::function<bool(std::int32_t page, std::int32_t pages)>;

// Calls `use` with each page. Throws StoppedError where `progress`, which may be empty, says so,
// and as LoadedPage.
template <class Use>
void forEachPage(VDoc& doc, PageMode mode, const PageProgress& progress, Use use) {
  for (std::int32_t number = 1; number <= doc.PageCount; ++number) {
    const LoadedPage page(doc, number, mode);
    use(*page);
    if (progress && !progress(number, doc.PageCount)) throw StoppedError();
  }
}

// Calls `use` with each line of a page that is loaded.
template <class Use>
void forEachLine(const VDocPage& page, Use use) {
  for (const VDocStr& line : page.lines()) use(line);
}

}  // namespace qor
