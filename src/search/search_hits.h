// How often a text stands on which pages. It keeps a few bytes a page that has some, so that a
// report with a hundred million hits costs no more than its pages. Pages are told from the one
// where the search began on, then those before it.
#pragma once

#include <cstdint>
#include <vector>

namespace qor {

// The hit of that number, from 0, on its page.
struct HitPlace {
  std::int32_t page = 0;
  std::uint64_t number = 0;

  bool operator==(const HitPlace&) const = default;
};

class SearchHits {
 public:
  // Pages from this one on come first.
  explicit SearchHits(std::int32_t first) : first_(first) {}

  // The next page with hits, one or more.
  void add(std::int32_t page, std::uint64_t hits);

  // Forgets those from this page on, one behind the first.
  void dropFrom(std::int32_t page);

  std::uint64_t total() const { return hitsOf(before_) + hitsOf(behind_); }

  // The hits by number, from 0, in the order of the pages.
  HitPlace at(std::uint64_t index) const;
  std::uint64_t indexOf(const HitPlace& place) const;

  // Index of the first hit on this page or behind it; the total where there is none.
  std::uint64_t firstFrom(std::int32_t page) const;
  std::uint64_t countOn(std::int32_t page) const { return firstFrom(page + 1) - firstFrom(page); }

 private:
  struct PageHits {
    std::int32_t page;
    std::uint64_t end;  // hits up to here
  };
  using Pages = std::vector<PageHits>;

  static std::uint64_t hitsOf(const Pages& pages) { return pages.empty() ? 0 : pages.back().end; }
  static std::uint64_t hitsBefore(const Pages& pages, std::int32_t page);
  static HitPlace placeIn(const Pages& pages, std::uint64_t index);

  std::int32_t first_;
  Pages behind_;  // from the first page on
  Pages before_;
};

}  // namespace qor
