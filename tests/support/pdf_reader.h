// PDF documents as an independent reader (poppler's tools) sees them.
#pragma once

#include <string>
#include <vector>

#include "platform/pictures/picture.h"

namespace qor::test {

// A word and the corner of its box, in millimetres from the corner of its page.
struct PdfWord {
  int page = 0;  // from 1
  double x = 0;
  double y = 0;
  std::string text;

  bool operator==(const PdfWord&) const = default;
};

struct PdfDocument {
  int pages = 0;
  double width = 0;  // of the first page, mm
  double height = 0;
  std::string title;
  std::vector<PdfWord> words;

  // The first such word; one on page 0 where there is none.
  PdfWord word(const std::string& text) const;
};

PdfDocument readPdf(const std::string& path);

// The document with its streams unpacked, as text.
std::string unpackedPdf(const std::string& path);

// Its pictures in their order, each once, masks too: colours, components, bits and way of packing,
// such as "rgb 3 8 jpeg".
std::vector<std::string> imagesOf(const std::string& path);

// A page as a picture at 96 dots per inch.
Picture renderPdf(const std::string& path, int page);

}  // namespace qor::test
