// The bytes that a report is cut at.
#pragma once

namespace qor {

inline constexpr char kTab = 9;
inline constexpr char kLineFeed = 10;
inline constexpr char kFormFeed = 12;
inline constexpr char kCarriageReturn = 13;
inline constexpr char kEndOfFile = 26;
inline constexpr char kEscape = 27;

// True for ESC and the other bytes below 32.
constexpr bool isControl(char c) {
  return static_cast<unsigned char>(c) < 32;
}

}  // namespace qor
