// The text of an item as it is drawn.
#include <algorithm>

#include "document/code_page.h"
#include "document/vdata.h"

namespace qor {

void VData_Text::BuildWideText() {
  if (Text.empty()) return;
  WideText.resize(Text.size());
  std::transform(Text.begin(), Text.end(), WideText.begin(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return static_cast<char32_t>(byte < 128 ? byte : CodePageTable[byte - 128U]);
  });
}

}  // namespace qor
