// The lines that are laid over a page, so that the eye can follow a row: how they look and where
// they stand, as "QorRow.ini" keeps it.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/canvas/canvas.h"

namespace qor {

enum class LineKind { row, shape };
inline constexpr std::array kLineKinds = {LineKind::row, LineKind::shape};

inline constexpr std::int32_t kMostLineHeight = 10000;  // pixels
inline constexpr std::int32_t kMostPenWidth = 10;

struct LineLook {
  std::int32_t height = 18;  // pixels, from 1 to kMostLineHeight
  Color color = 255;
  std::int32_t penStyle = 2;  // from 0: solid, dash, dot, dash-dot, dash-dot-dot; else as 2
  std::int32_t penWidth = 1;  // pixels, from 1 to kMostPenWidth
  std::int32_t lastTop = 0;   // pixels from the top of the area
  std::int32_t showFlag = 0;  // 1: it is there when the window opens

  bool operator==(const LineLook&) const = default;
};

PenStyle penOf(std::int32_t style);

// Of the text of the file. What is missing or no number is as above, and what is out of range as
// near as can be. The colour has to be under a key with a blank at its end, as it always had: only
// who edits the file puts it there.
LineLook lookIn(std::string_view ini, LineKind kind);

// The text with all of the look, or only where the line stands.
std::string withLook(std::string_view ini, LineKind kind, const LineLook& look);
std::string withTop(std::string_view ini, LineKind kind, std::int32_t top);

}  // namespace qor
