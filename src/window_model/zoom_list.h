// The zooms that the window offers: those of its list, a row each from the largest down, and those
// of its menu. The user's settings keep a zoom by its place in the list.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace qor {

inline constexpr std::int32_t kNaturalZoom = 100;  // percent
inline constexpr std::int32_t kFitWidth = -1;      // in the place of a percentage
inline constexpr std::int32_t kFitHeight = -2;

struct ZoomEntry {
  std::string_view text;
  std::int32_t percent;
};

inline constexpr auto kZoomList = std::to_array<ZoomEntry>({{"500%", 500},
                                                            {"400%", 400},
                                                            {"300%", 300},
                                                            {"200%", 200},
                                                            {"150%", 150},
                                                            {"125%", 125},
                                                            {"100%", 100},
                                                            {"75%", 75},
                                                            {"50%", 50},
                                                            {"25%", 25},
                                                            {"12%", 12},
                                                            {"5%", 5},
                                                            {"AutoW", kFitWidth},
                                                            {"AutoH", kFitHeight}});

inline constexpr int kNoZoomEntry = -1;

// The percentage of an entry of the list; 100 where none is selected.
constexpr std::int32_t zoomPercent(int entry) {
  const auto index = static_cast<std::size_t>(entry);
  return entry >= 0 && index < kZoomList.size() ? kZoomList[index].percent : kNaturalZoom;
}

// The entry of a percentage, or of what stands in its place; none where the list lacks it.
constexpr int zoomEntryOf(std::int32_t percent) {
  for (int entry = 0; entry < static_cast<int>(kZoomList.size()); ++entry) {
    if (zoomPercent(entry) == percent) return entry;
  }
  return kNoZoomEntry;
}

inline constexpr int kNaturalZoomEntry = zoomEntryOf(kNaturalZoom);
// The smallest zoom that a wide view keeps for the next time.
inline constexpr int kLastFixedZoomEntry = zoomEntryOf(12);

// The entries of the menu, with what they pick: it has no 125 percent, so that those behind pick
// the next larger zoom than they read, as clerks know it.
struct ZoomMenuEntry {
  std::string_view text;
  std::int32_t percent;
};

inline constexpr auto kZoomMenu = std::to_array<ZoomMenuEntry>({{"500%", 500},
                                                                {"400%", 400},
                                                                {"300%", 300},
                                                                {"200%", 200},
                                                                {"150%", 150},
                                                                {"100%", 125},
                                                                {"75%", 100},
                                                                {"50%", 75},
                                                                {"25%", 50},
                                                                {"12%", 25},
                                                                {"5%", 12},
                                                                {"AutoW", 5},
                                                                {"AutoH", kFitWidth}});

// The entry one step larger or smaller, or the same at the ends of the list.
constexpr int largerZoomEntry(int entry) {
  if (entry == kNoZoomEntry) entry = kNaturalZoomEntry;
  return entry > 0 ? entry - 1 : 0;
}
constexpr int smallerZoomEntry(int entry) {
  if (entry == kNoZoomEntry) entry = kNaturalZoomEntry;
  constexpr int last = static_cast<int>(kZoomList.size()) - 1;
  return entry < last ? entry + 1 : last;
}

// The entry whose percentage is the next above or below this one, or none.
constexpr int zoomEntryAbove(std::int32_t percent) {
  int found = kNoZoomEntry;
  for (int entry = 0; entry < static_cast<int>(kZoomList.size()); ++entry) {
    if (zoomPercent(entry) > percent) found = entry;
  }
  return found;
}
constexpr int zoomEntryBelow(std::int32_t percent) {
  for (int entry = 0; entry < static_cast<int>(kZoomList.size()); ++entry) {
    if (zoomPercent(entry) > 0 && zoomPercent(entry) < percent) return entry;
  }
  return kNoZoomEntry;
}

}  // namespace qor
