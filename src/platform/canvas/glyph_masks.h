// Glyphs as coverage of dots, kept for the next time they are painted on a bitmap.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "platform/fonts/font_face.h"

namespace qor {

// A glyph's pen stands on one of this many places within a dot, so that letters keep their
// distances at any size.
inline constexpr int kMaskPhases = 4;

struct MaskKey {
  const FontFace* face = nullptr;
  std::uint32_t glyph = 0;
  std::int32_t width = 0;   // em size across, 1/64 dots
  std::int32_t height = 0;  // em size down, 1/64 dots
  std::int32_t phase = 0;   // 0 to kMaskPhases - 1

  bool operator==(const MaskKey&) const = default;
};

struct GlyphMask {
  int left = 0;  // first column, from the dot of the pen
  int top = 0;   // first row, from the row of the baseline; upward negative
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> coverage;  // row by row from the top
};

class GlyphMasks {
 public:
  // The mask, empty where the glyph has no outline. Valid until the next call.
  const GlyphMask& get(const MaskKey& key);

 private:
  struct Hash {
    std::size_t operator()(const MaskKey& key) const;
  };

  std::unordered_map<MaskKey, GlyphMask, Hash> masks_;
  std::size_t bytes_ = 0;
};

}  // namespace qor
