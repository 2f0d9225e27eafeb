// Papers and trays: the numbers of the Windows print system beside the registered names of the
// Internet Printing Protocol (PWG 5101.1).
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "platform/print/print_queues.h"

namespace qor {

struct PaperRow {
  int number;  // DMPAPER_*
  std::string_view name;
  std::string_view media;
  bool turned = false;  // the sheet lies on the long side of what the name tells
};

// Every paper that is in both lists. Of papers with one name or size the first is the usual one.
std::span<const PaperRow> paperTable();

// The size that a registered name ends with: "iso_a4_210x297mm" or "na_letter_8.5x11in". Nothing
// where it ends otherwise or tells a size beyond 100 m.
std::optional<MediaSize> sizeOfMedia(std::string_view name);

MediaSize sizeOf(const PaperRow& row);

// True if the sheets differ by less than what cutting does (1 mm on either side).
bool sameSize(MediaSize first, MediaSize second);

struct BinRow {
  int number;  // DMBIN_*
  std::string_view name;
  std::string_view source;
};

std::span<const BinRow> binTable();

}  // namespace qor
