// Fonts of text, and the stack of open style tags.
#include "document/font_state.h"

#include <algorithm>

#include "base/app_options.h"

namespace qor {

void FontState::Reset() {
  Kind = 0;
  WidthFactor = 1.0;
  Height = 10.0;
  Width = 0.0;
  LogFont = {};
  LogFont.CharSet = static_cast<std::uint8_t>(AppOptions.FontCharset);
  Color = 0;
  CharSpacing = 0.0;
  LineSpacing = 0.0;
  RowHeight = 0.0;
}

void VFont_List::Push(int key, const SharedFont& font) {
  open_.push_back({key, openKeys() | 1U << key, font});
}

bool VFont_List::Pop(int key, SharedFont& font) {
  if ((openKeys() & 1U << key) == 0) return false;
  const auto found = std::find_if(open_.rbegin(), open_.rend(),
                                  [key](const VFont_Node& node) { return node.Key == key; });
  font = found->Saved;
  open_.erase(std::prev(found.base()), open_.end());
  return true;
}

}  // namespace qor
