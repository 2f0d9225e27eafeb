// The zooms that the window offers: those of its list, and those of its menu.
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

inline constexpr std::array<ZoomEntry, 14> kZoomList = {{{"500%", 500},
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
                                                         {"AutoH", kFitHeight}}};

inline constexpr int kNoZoomEntry = -1;
inline constexpr int kNaturalZoomEntry = 6;
inline constexpr int kLastFixedZoomEntry = 10;  // that a wide view keeps for the next time

static_assert(kZoomList[kNaturalZoomEntry].percent == kNaturalZoom);

// An entry of the menu picks the entry of the list at its place. The menu has no 125 percent, so
// that its later entries pick the next larger zoom than they read, as clerks know it.
inline constexpr std::array<std::string_view, 13> kZoomMenu = {
    "500%", "400%", "300%", "200%", "150%",  "100%", "75%",
    "50%",  "25%",  "12%",  "5%",   "AutoW", "AutoH"};

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
