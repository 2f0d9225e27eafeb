// Which pages of a report are exported, as servers write it: "1-3,7-,odd".
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace qor {

class PageRanges {
 public:
  // All pages.
  PageRanges() = default;

  // Numbers from 1 on, ranges of them that may lack an end, "odd" and "even", parted by commas:
  // pages of any of them. Throws ConversionError.
  explicit PageRanges(std::string_view text);

  bool has(std::int32_t page) const;

  // Of pages from 1 to `count`: how many, and the last one, 0 where there is none.
  std::int32_t countOf(std::int32_t count) const;
  std::int32_t lastOf(std::int32_t count) const;

 private:
  struct Range {
    std::int32_t first;
    std::int32_t last;
    std::int32_t step;  // 2 for every other page

    bool has(std::int32_t page) const {
      return page >= first && page <= last && (page - first) % step == 0;
    }
  };

  static Range rangeOf(std::string_view entry);

  std::vector<Range> ranges_;  // none: all
};

}  // namespace qor
