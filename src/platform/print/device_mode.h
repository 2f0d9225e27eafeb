// How a printer is set up for a job, in the terms of the Windows print system: settings sets and
// control sequences know papers, bins and qualities by its numbers.
#pragma once

#include <cstdint>

namespace qor {

// Which members of a mode were set on purpose; the others hold what the printer has.
enum DeviceModeField : std::uint32_t {
  DM_ORIENTATION = 0x1,
  DM_PAPERSIZE = 0x2,
  DM_PAPERLENGTH = 0x4,
  DM_PAPERWIDTH = 0x8,
  DM_COPIES = 0x100,
  DM_DEFAULTSOURCE = 0x200,
  DM_PRINTQUALITY = 0x400,
  DM_COLOR = 0x800,
  DM_COLLATE = 0x8000
};

inline constexpr int kPortrait = 1;
inline constexpr int kLandscape = 2;
inline constexpr int kUserPaper = 256;
inline constexpr int kFormSource = 15;  // the tray that the printer chooses for the paper
inline constexpr int kMonochrome = 1;
inline constexpr int kInColor = 2;

struct DeviceMode {
  std::uint32_t dmFields = 0;
  std::int32_t dmOrientation = kPortrait;
  std::int32_t dmPaperSize = 9;    // Windows paper number
  std::int32_t dmPaperLength = 0;  // tenths of a millimetre, of the upright sheet
  std::int32_t dmPaperWidth = 0;
  std::int32_t dmCopies = 1;
  std::int32_t dmDefaultSource = kFormSource;  // Windows bin number
  std::int32_t dmPrintQuality = 0;             // dots per inch, or -1 (draft) to -4 (high)
  std::int32_t dmColor = kInColor;
  std::int32_t dmCollate = 0;

  bool has(DeviceModeField field) const { return (dmFields & field) != 0; }

  bool operator==(const DeviceMode&) const = default;
};

}  // namespace qor
