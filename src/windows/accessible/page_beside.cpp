// Pages beside the document's own.
#include "windows/accessible/page_beside.h"

#include "base/app_options.h"
#include "document/vdoc.h"
#include "windows/failure_text.h"
#include "windows/view/page_text.h"

namespace qor {

PageBeside::PageBeside() = default;

PageBeside::~PageBeside() = default;

const TextMap* PageBeside::map(VDoc& doc, std::int32_t number) {
  if (page_ && page_->Number == number) return map_.get();
  drop();
  if (doc.findPage(number) != nullptr) failureOf([&] { read(doc, number); });
  return map_.get();
}

void PageBeside::read(VDoc& doc, std::int32_t number) {
  page_ = std::make_unique<VDocPage>(number, &doc.Settings);
  page_->Offset = doc.findPage(number)->Offset;
  page_->Length = doc.findPage(number)->Length;
  FontState font = doc.FontAt(number);
  page_->ReadLines(InputFile(AppOptions.FileName), doc.KnownSize, PageMode::plain, doc.lineEnds(),
                   font);
  map_ = std::make_unique<TextMap>(PageText::mapOf(*page_));
}

void PageBeside::drop() {
  map_.reset();
  page_.reset();
}

}  // namespace qor
