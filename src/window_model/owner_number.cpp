// Numbers of reports.
#include "window_model/owner_number.h"

#include <algorithm>

#include "base/text.h"

namespace qor {

std::int32_t ownerNumber(std::string_view fileName) {
  constexpr std::size_t kDigits = 4;
  const auto point = fileName.rfind('.');
  if (point == std::string_view::npos) return 0;
  const std::size_t start = point - std::min(point, kDigits);
  return parseInteger(fileName.substr(start, point - start)).value_or(0);
}

}  // namespace qor
