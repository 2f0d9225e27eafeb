// Searching reports.
#include "search/report_search.h"

#include <utility>

#include "base/app_options.h"
#include "base/errors.h"
#include "document/vdoc.h"

namespace qor {

ReportSearch::ReportSearch(VDoc& doc, const FindQuery& query, const LetterRules& rules,
                           std::int32_t first)
    : doc_(doc), search_(doc, query, rules), hits_(first), first_(first), behind_(first) {
}

// 0 where all are searched.
std::int32_t ReportSearch::pageAtHand() const {
  if (behind_ <= doc_.PageCount) return behind_;
  return before_ < first_ && before_ <= doc_.PageCount ? before_ : 0;
}

bool ReportSearch::goOn(const std::function<bool()>& mayGoOn) {
  if (isDone() || isEmpty()) return false;
  doc_.RequireSameFile();
  const auto file = VDoc::OpenFile();
  if (!file) throw NumberedError(kErrorOpenDocument, AppOptions.FileName);
  while (!isDone() && mayGoOn()) searchPage(*file);
  return !isDone();
}

void ReportSearch::searchPage(const InputFile& file) {
  if (!std::exchange(started_, true)) {
    found_ = 0;
    search_.start(pageAtHand(), file);
  }
  if (!search_.step([this](const TextHit&, std::u32string_view) { ++found_; })) endPage();
}

void ReportSearch::endPage() {
  const std::int32_t page = pageAtHand();
  if (found_ > 0) hits_.add(page, found_);
  ++(page >= first_ ? behind_ : before_);
  started_ = false;
}

void ReportSearch::searchFrom(std::int32_t page) {
  if (page > behind_) return;
  hits_.dropFrom(page);
  behind_ = page;
  started_ = false;
}

}  // namespace qor
