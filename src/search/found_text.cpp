// Hits in their lines.
#include "search/found_text.h"

#include <algorithm>

namespace qor {
namespace {

constexpr std::size_t kBefore = 40;  // letters
constexpr std::size_t kBehind = 120;

}  // namespace

FoundText foundText(std::u32string_view line, const TextSpan& hit) {
  const std::size_t start = hit.first - std::min(hit.first, kBefore);
  std::u32string_view before = line.substr(start, hit.first - start);
  before.remove_prefix(std::min(before.size(), before.find_first_not_of(U' ')));
  const std::u32string_view behind = line.substr(hit.end(), kBehind);
  return {std::u32string(start > 0 ? U"\u2026" : U"").append(before),
          std::u32string(line.substr(hit.first, std::min(hit.count, kBehind))),
          std::u32string(behind)};
}

}  // namespace qor
