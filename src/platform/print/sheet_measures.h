// What a device tells of the sheet that it prints on, or what stands for one: the printable area
// lies at the offset on the physical sheet. Lengths in dots unless told.
#pragma once

#include <cstdint>

namespace qor {

struct SheetMeasures {
  std::int32_t Orientation = 0;  // 1 portrait, 2 landscape
  std::int32_t LogPixelsX = 0;   // dots per inch
  std::int32_t LogPixelsY = 0;
  std::int32_t HorzRes = 0;  // printable area
  std::int32_t VertRes = 0;
  std::int32_t HorzSize = 0;  // printable area, mm
  std::int32_t VertSize = 0;
  std::int32_t PhysicalWidth = 0;
  std::int32_t PhysicalHeight = 0;
  std::int32_t PhysicalOffsetX = 0;
  std::int32_t PhysicalOffsetY = 0;
};

}  // namespace qor
