// The list of pages to print, such as "1,3-5".
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "base/app_options.h"
#include "base/errors.h"
#include "base/text.h"
#include "document/vdoc.h"

namespace qor {
namespace {

constexpr std::size_t kMaxEntries = 20;
constexpr std::size_t kMaxText = 255;

struct PageRange {
  std::uint32_t first;
  std::uint32_t last;
};

std::uint32_t pageNumber(std::string_view text) {
  return static_cast<std::uint32_t>(toInteger(trimmed(text)));
}

PageRange rangeOf(std::string_view entry) {
  const auto dash = entry.find('-');
  if (dash == std::string_view::npos) return {pageNumber(entry), pageNumber(entry)};
  return {pageNumber(entry.substr(0, dash)), pageNumber(entry.substr(dash + 1, kMaxText))};
}

// Every entry must be readable, but only the first 20 count.
std::vector<PageRange> parsePageList(std::string_view list) {
  std::vector<PageRange> ranges;
  while (!list.empty()) {
    const std::string_view entry = upTo(list, ',');
    const PageRange range = rangeOf(entry);
    if (ranges.size() < kMaxEntries) ranges.push_back(range);
    list =
        entry.size() == list.size() ? std::string_view() : list.substr(entry.size() + 1, kMaxText);
  }
  return ranges;
}

std::vector<PageRange> readPageList(const std::string& list) {
  try {
    return parsePageList(list);
  } catch (const ConversionError& error) {
    throw ConversionError(
        AppOptions.FileName + ": pages to print \"" + list + "\": " + error.what(),
        ErrorKind::badSettings);
  }
}

}  // namespace

void VDoc::SelectPages() {
  const std::vector<PageRange> ranges = readPageList(Settings.Page.PagesForPrint);
  if (ranges.empty()) return;
  for (VDocPage& page : Pages) {
    const auto number = static_cast<std::uint32_t>(page.Number);
    page.Selected = std::any_of(ranges.begin(), ranges.end(), [number](const PageRange& range) {
      return range.first <= number && number <= range.last;
    });
  }
}

}  // namespace qor
