// The pictures of a document, each in the file once however often it is shown.
#pragma once

#include <string>
#include <unordered_map>

#include "platform/pdf/pdf_file.h"
#include "platform/pictures/picture.h"

namespace qor {

struct PdfImage {
  PdfId object = 0;
  int width = 0;  // pixels
  int height = 0;
};

class PdfImages {
 public:
  explicit PdfImages(PdfFile& file) : file_(file) {}

  // Puts the picture of a file's bytes into the document: JPEG as it stands, all others decoded.
  // Null where the bytes are no picture that can be read.
  const PdfImage* add(std::string_view bytes);

 private:
  PdfImage write(std::string_view bytes, const Picture& picture);
  PdfId writePixels(const Picture& picture);

  PdfFile& file_;
  std::unordered_map<std::string, PdfImage> known_;  // by size and two hashes of the bytes
};

}  // namespace qor
