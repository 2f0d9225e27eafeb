// Counting hits.
#include "search/search_hits.h"

#include <algorithm>

namespace qor {

void SearchHits::add(std::int32_t page, std::uint64_t hits) {
  Pages& pages = page < first_ ? before_ : behind_;
  pages.push_back({page, hitsOf(pages) + hits});
}

void SearchHits::dropFrom(std::int32_t page) {
  std::erase_if(behind_, [page](const PageHits& hits) { return hits.page >= page; });
}

std::uint64_t SearchHits::hitsBefore(const Pages& pages, std::int32_t page) {
  const auto found = std::partition_point(pages.begin(), pages.end(),
                                          [page](const PageHits& p) { return p.page < page; });
  return found == pages.begin() ? 0 : (found - 1)->end;
}

std::uint64_t SearchHits::firstFrom(std::int32_t page) const {
  return hitsBefore(before_, page) + hitsBefore(behind_, page);
}

HitPlace SearchHits::placeIn(const Pages& pages, std::uint64_t index) {
  const auto found = std::partition_point(pages.begin(), pages.end(),
                                          [index](const PageHits& p) { return p.end <= index; });
  return {found->page, index - (found == pages.begin() ? 0 : (found - 1)->end)};
}

HitPlace SearchHits::at(std::uint64_t index) const {
  const std::uint64_t before = hitsOf(before_);
  return index < before ? placeIn(before_, index) : placeIn(behind_, index - before);
}

std::uint64_t SearchHits::indexOf(const HitPlace& place) const {
  return firstFrom(place.page) + place.number;
}

}  // namespace qor
