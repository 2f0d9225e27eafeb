// Reading ranges of pages.
#include "export/page_ranges.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>

#include "base/errors.h"
#include "base/text.h"

namespace qor {
namespace {

constexpr std::int32_t kEnd = std::numeric_limits<std::int32_t>::max();

std::int32_t numberOf(std::string_view text, std::string_view entry) {
  std::int32_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc{} || stop != end || number < 1)
    throw ConversionError("\"" + std::string(entry) + "\" names no pages");
  return number;
}

}  // namespace

PageRanges::PageRanges(std::string_view text) {
  for (;;) {
    const std::string_view entry = upTo(text, ',');
    ranges_.push_back(rangeOf(trimmed(entry)));
    if (entry.size() == text.size()) return;
    text.remove_prefix(entry.size() + 1);
  }
}

PageRanges::Range PageRanges::rangeOf(std::string_view entry) {
  if (entry == "odd") return {1, kEnd, 2};
  if (entry == "even") return {2, kEnd, 2};
  const auto dash = entry.find('-');
  if (dash == std::string_view::npos) {
    const std::int32_t page = numberOf(entry, entry);
    return {page, page, 1};
  }
  const std::string_view first = entry.substr(0, dash);
  const std::string_view last = entry.substr(dash + 1);
  const Range range = {first.empty() && !last.empty() ? 1 : numberOf(first, entry),
                       last.empty() ? kEnd : numberOf(last, entry), 1};
  if (range.first > range.last)
    throw ConversionError("\"" + std::string(entry) + "\" ends before it begins");
  return range;
}

bool PageRanges::has(std::int32_t page) const {
  return ranges_.empty() ||
         std::ranges::any_of(ranges_, [page](const Range& range) { return range.has(page); });
}

std::int32_t PageRanges::countOf(std::int32_t count) const {
  if (ranges_.empty()) return count;
  std::int32_t pages = 0;
  for (std::int32_t page = 1; page <= count; ++page) pages += has(page) ? 1 : 0;
  return pages;
}

std::int32_t PageRanges::lastOf(std::int32_t count) const {
  std::int32_t page = count;
  while (page > 0 && !has(page)) --page;
  return page;
}

}  // namespace qor
