// All there is to say about the font of a piece of text, and the stack of fonts that style tags
// save and bring back.
#pragma once

#include <cstdint>
#include <vector>

#include "document/shared_font.h"
#include "platform/canvas/color.h"
#include "platform/fonts/log_font.h"

namespace qor {

// It holds no pointers: items share one by its value.
struct FontState {
  std::int32_t Kind;       // not read
  double WidthFactor;      // scale of the character width
  double Height;           // points
  double Width;            // points; 0: the natural width
  struct LogFont LogFont;  // its height and width are worked out anew at each drawing
  qor::Color Color;
  double CharSpacing;  // millimetres between characters
  double LineSpacing;  // millimetres between lines
  double RowHeight;    // 1/48 inch, of the text grid and of empty lines; 0: as the font has it

  FontState() { Reset(); }

  bool operator==(const FontState&) const = default;

  // Courier New, 10 points, black, in the character set of the interface language.
  void Reset();
};

// One open style tag and the font that was in force before it.
struct VFont_Node {
  int Key;                 // the tag's place in the list of style keys, 0 to 31
  std::uint32_t OpenKeys;  // one bit for each key that is open here: this one and all older
  SharedFont Saved;
};

// The open style tags, oldest first.
class VFont_List {
 public:
  void Push(int key, const SharedFont& font);

  // Brings back the font from before the newest tag with this key, and closes the tags opened
  // since. False, and nothing happens, where no such tag is open.
  bool Pop(int key, SharedFont& font);

 private:
  std::uint32_t openKeys() const { return open_.empty() ? 0 : open_.back().OpenKeys; }

  std::vector<VFont_Node> open_;
};

}  // namespace qor
