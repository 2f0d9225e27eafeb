// Text of pages.
#include "windows/view/page_text.h"

#include "document/code_page.h"
#include "document/vdocpage.h"
#include "document/vset.h"
#include "windows/failure_text.h"
#include "windows/view/page_show.h"

namespace qor {

PageText::PageText(PageShow& pages) : pages_(pages) {
  connect(&pages, &PageShow::letGo, this, [this] {
    map_.reset();
    emit dropped();
  });
}

const TextMap* PageText::map() {
  VDocPage* page = pages_.loadedPage();
  if (map_ || page == nullptr) return map_.get();
  failureOf([this, page] { map_ = std::make_unique<TextMap>(mapOf(*page)); });
  return map_.get();
}

TextMap PageText::mapOf(VDocPage& page) {
  const int codePage = page.Settings->Page.BaseCodePage;
  LoadCodePage(codePage);
  return {page, DocumentLetters(codePage)};
}

}  // namespace qor
