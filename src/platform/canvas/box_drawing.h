// The line and block characters of the old code pages, as rectangles of whole dots. Drawn like this
// they join from cell to cell, which a font's own glyphs do only at a few sizes.
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace qor {

class DeviceSpace;
struct TextRun;

struct DotRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  std::uint8_t coverage = 255;
};

class BoxCharacter {
 public:
  // The rectangles of the character in its cell; none if it is no such character.
  BoxCharacter(char32_t character, const DotRect& cell);

  std::span<const DotRect> rects() const { return {rects_.data(), count_}; }

 private:
  void add(const DotRect& rect) { rects_[count_++] = rect; }
  void addBlock(char32_t character, const DotRect& cell);
  void addArms(const std::uint8_t* arms, const DotRect& cell, int stroke);

  std::array<DotRect, 8> rects_;
  std::size_t count_ = 0;
};

// True for the characters that have rectangles.
bool isBoxCharacter(char32_t character);

// True for those of them that let the paper shine through.
bool isShade(char32_t character);

// The cell of a character of level text.
DotRect boxCell(const DeviceSpace& space, const TextRun& run, std::size_t place);

}  // namespace qor
