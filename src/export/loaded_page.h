// A page of the document while somebody uses it.
#pragma once

#include "document/vdoc.h"

namespace qor {

// Loads the page and lets it go with the object.
class LoadedPage {
 public:
  LoadedPage(VDoc& doc, std::int32_t number, int mode) : page_(doc.GetPage(number, mode)) {}
  ~LoadedPage() {
    if (page_ != nullptr) page_->ReleaseLines();
  }
  LoadedPage(const LoadedPage&) = delete;
  LoadedPage& operator=(const LoadedPage&) = delete;

  VDocPage& operator*() const { return *page_; }
  VDocPage* operator->() const { return page_; }

 private:
  VDocPage* page_;
};

}  // namespace qor
