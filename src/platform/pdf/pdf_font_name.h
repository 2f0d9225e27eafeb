// What a font of a document is asked for by.
#pragma once

#include <string>
#include <tuple>

namespace qor {

struct PdfFontName {
  std::string face;
  bool bold = false;
  bool italic = false;

  bool operator<(const PdfFontName& other) const {
    return std::tie(face, bold, italic) < std::tie(other.face, other.bold, other.italic);
  }
};

}  // namespace qor
