// What a font of a document is asked for by.
#pragma once

#include <compare>
#include <string>

namespace qor {

struct PdfFontName {
  std::string face;
  bool bold = false;
  bool italic = false;

  auto operator<=>(const PdfFontName&) const = default;
};

}  // namespace qor
