// Reading page lists. Numbers compare unsigned: reports depend on a negative end of a range being
// beyond all pages.
#include "document/page_list.h"

#include <algorithm>
#include <utility>

#include "base/app_options.h"
#include "base/errors.h"
#include "base/text.h"

namespace qor {
namespace {

constexpr std::size_t kMaxEntries = 20;
constexpr std::size_t kMaxText = 255;

std::uint32_t pageNumber(std::string_view text) {
  return static_cast<std::uint32_t>(toInteger(trimmed(text)));
}

}  // namespace

PageList::PageList(const std::string& text) : empty_(text.empty()) {
  try {
    read(text);
  } catch (const ConversionError& error) {
    throw ConversionError(
        AppOptions.FileName + ": pages to print \"" + text + "\": " + error.what(),
        ErrorKind::badSettings);
  }
  mergeRanges();
}

PageList::Range PageList::rangeOf(std::string_view entry) {
  const auto dash = entry.find('-');
  if (dash == std::string_view::npos) return {pageNumber(entry), pageNumber(entry)};
  return {pageNumber(entry.substr(0, dash)), pageNumber(entry.substr(dash + 1, kMaxText))};
}

void PageList::read(std::string_view text) {
  while (!text.empty()) {
    const std::string_view entry = upTo(text, ',');
    const Range range = rangeOf(entry);
    if (ranges_.size() < kMaxEntries) ranges_.push_back(range);
    text =
        entry.size() == text.size() ? std::string_view() : text.substr(entry.size() + 1, kMaxText);
  }
}

void PageList::mergeRanges() {
  std::vector<Range> read = std::exchange(ranges_, {});
  std::erase_if(read, [](const Range& range) { return range.first > range.last; });
  std::ranges::sort(read, {}, &Range::first);
  for (const Range& range : read) {
    if (ranges_.empty() || ranges_.back().last < range.first) {
      ranges_.push_back(range);
    } else {
      ranges_.back().last = std::max(ranges_.back().last, range.last);
    }
  }
}

bool PageList::has(std::int32_t page) const {
  const auto number = static_cast<std::uint32_t>(page);
  return std::ranges::any_of(ranges_, [number](const Range& range) {
    return range.first <= number && number <= range.last;
  });
}

std::int32_t PageList::countOf(std::int32_t pages) const {
  const auto end = static_cast<std::uint32_t>(std::max(pages, 0));
  std::uint32_t count = 0;
  for (const Range& range : ranges_) {
    const std::uint32_t first = std::max(range.first, 1U);
    const std::uint32_t last = std::min(range.last, end);
    if (first <= last) count += last - first + 1;
  }
  return static_cast<std::int32_t>(count);
}

}  // namespace qor
