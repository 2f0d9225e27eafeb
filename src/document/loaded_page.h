// A page of the document while somebody uses it.
#pragma once

#include "base/app_options.h"
#include "base/errors.h"
#include "document/vdoc.h"

namespace qor {

// Loads the page and lets it go with the object; one that is on show, and so loaded plainly, stays.
// Throws NumberedError where the report can't be opened any more: it would be blank.
class LoadedPage {
 public:
  LoadedPage(VDoc& doc, std::int32_t number, PageMode mode = PageMode::plain)
      : doc_(doc),
        number_(number),
        page_(doc.findPage(number)),
        is_ours_(mode != PageMode::plain || page_ == nullptr || !page_->Loaded) {
    if (is_ours_) doc.GetPage(number, mode);
    if (page_ == nullptr || !page_->Loaded)
      throw NumberedError(kErrorOpenDocument, AppOptions.FileName);
  }
  // Reads it in any case, from a file that is open already.
  LoadedPage(VDoc& doc, std::int32_t number, const InputFile& file, PageMode mode)
      : doc_(doc), number_(number), page_(&doc.LoadPage(number, file, mode)) {}
  ~LoadedPage() {
    if (is_ours_) doc_.ReleasePage(number_);
  }
  LoadedPage(const LoadedPage&) = delete;
  LoadedPage& operator=(const LoadedPage&) = delete;

  VDocPage& operator*() const { return *page_; }
  VDocPage* operator->() const { return page_; }

 private:
  VDoc& doc_;
  std::int32_t number_;
  VDocPage* page_;
  bool is_ours_ = true;
};

}  // namespace qor
