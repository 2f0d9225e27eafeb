// Pictures on the pages of a print job: in its document once, however often they are shown, and
// decoded only while Cairo looks at them. Without this it would keep the pixels of a whole page.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/canvas/cairo_canvas.h"

namespace qor {

class StoredPicture;

class PaperPictures {
 public:
  // Makes the picture what the context paints with, a unit a pixel.
  void use(cairo_t* context, const StoredPicture& picture);

  // The page has been written.
  void endPage();

 private:
  bool useJpeg(cairo_t* context, const StoredPicture& picture);
  void usePixels(cairo_t* context, const StoredPicture& picture);

  std::unordered_map<std::string, CairoOwned<cairo_surface_t>> jpegs_;  // of the page, by key
  std::size_t jpeg_bytes_ = 0;
  std::vector<std::shared_ptr<const StoredPicture>> shown_;  // on the page
};

}  // namespace qor
