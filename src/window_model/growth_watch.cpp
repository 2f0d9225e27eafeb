// Growing reports.
#include "window_model/growth_watch.h"

#include "base/app_options.h"
#include "document/vdoc.h"

namespace qor {

void GrowthWatch::noteFile() {
  stamp_ = fileStamp(AppOptions.FileName);
}

Growth GrowthWatch::tick(VDoc* doc) {
  blinks_ = !blinks_;
  if (doc == nullptr || !doc->FileChanged()) return Growth::none;
  noteFile();
  if (!doc->ScanPages(true)) return Growth::pages;
  stop();
  blinks_ = false;
  return Growth::complete;
}

FileState GrowthWatch::fileState() const {
  const auto now = fileStamp(AppOptions.FileName);
  if (now == stamp_) return FileState::asIndexed;
  return now ? FileState::changed : FileState::gone;
}

}  // namespace qor
