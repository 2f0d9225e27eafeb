// The pictures of a document, each in the file once however often it is shown.
#pragma once

#include <string>
#include <unordered_map>

#include "platform/pdf/pdf_file.h"
#include "platform/pictures/picture_store.h"

namespace qor {

struct PdfImage {
  PdfId object = 0;
  int width = 0;  // pixels
  int height = 0;
};

class PdfImages {
 public:
  explicit PdfImages(PdfFile& file) : file_(file) {}

  // Puts the picture into the document: JPEG and PNG as they stand where all read them alike, all
  // others decoded. Null where its file has gone.
  const PdfImage* add(const StoredPicture& picture);

 private:
  PdfId write(const StoredPicture& picture);
  PdfId writeJpeg(const std::string& file, const StoredPicture& picture);
  PdfId writePng(const std::string& file);
  PdfId writePixels(const Picture& picture);

  PdfFile& file_;
  std::unordered_map<std::string, PdfImage> known_;  // by the keys of pictures
};

}  // namespace qor
