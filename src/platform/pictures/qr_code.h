// QR codes as matrices.
#pragma once

#include <string_view>
#include <vector>

namespace qor {

// size * size modules, row by row, quiet zone included.
struct QrMatrix {
  int size = 0;
  std::vector<bool> black;

  bool isBlack(int row, int column) const {
    return black[static_cast<std::size_t>(row) * static_cast<std::size_t>(size) +
                 static_cast<std::size_t>(column)];
  }
};

// The smallest symbol that holds the text, error correction L, with `quietZone` modules around it.
// A text that no symbol holds gives a matrix of the quiet zone alone, without black modules.
QrMatrix encodeQr(std::u32string_view text, int quietZone);

}  // namespace qor
