// A list of page numbers as users write it, such as "1,3,5-12".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qor {

class PageList {
 public:
  // Every entry must be readable, but only the first 20 count; of what stands behind a comma or a
  // dash the first 255 characters are read. Throws ConversionError.
  explicit PageList(const std::string& text);

  // Whether the text is; a list that isn't may still hold no page.
  bool isEmpty() const { return empty_; }

  bool has(std::int32_t page) const;

  // How many of the pages from 1 on to `pages` are in the list.
  std::int32_t countOf(std::int32_t pages) const;

 private:
  struct Range {
    std::uint32_t first;
    std::uint32_t last;
  };

  static Range rangeOf(std::string_view entry);
  void read(std::string_view text);
  void mergeRanges();

  bool empty_;
  std::vector<Range> ranges_;  // ascending, no page in two of them
};

}  // namespace qor
