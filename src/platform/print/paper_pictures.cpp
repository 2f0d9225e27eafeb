// Pictures for Cairo's PDF surface.
#include "platform/print/paper_pictures.h"

#include <algorithm>
#include <utility>

#include "platform/pictures/picture.h"
#include "platform/pictures/picture_store.h"

namespace qor {
namespace {

// Files of a page that wait for its end. What is beyond is written decoded.
constexpr std::size_t kMostJpegBytes = std::size_t{80} << 20;

struct PatternDeleter {
  void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};
using OwnedPattern = std::unique_ptr<cairo_pattern_t, PatternDeleter>;

// Data that goes with the surface.
template <class Bytes>
void attach(cairo_surface_t* surface, const char* type, Bytes bytes) {
  auto kept = std::make_unique<Bytes>(std::move(bytes));
  const auto letGo = [](void* data) { delete static_cast<Bytes*>(data); };
  const cairo_status_t status = cairo_surface_set_mime_data(
      surface, type, reinterpret_cast<const unsigned char*>((*kept)->data()), (*kept)->size(),
      letGo, kept.get());
  if (status == CAIRO_STATUS_SUCCESS) static_cast<void>(kept.release());
}

// Pictures with the same key are written once.
void attachKey(cairo_surface_t* surface, const StoredPicture& picture) {
  attach(surface, CAIRO_MIME_TYPE_UNIQUE_ID, std::make_shared<const std::string>(picture.key()));
}

// The pixels for as long as Cairo wants to see them; of a file that has gone nothing.
cairo_surface_t* showPixels(cairo_pattern_t*, void* data, cairo_surface_t*,
                            const cairo_rectangle_int_t*) {
  using Shared = std::shared_ptr<const Picture>;
  static const cairo_user_data_key_t key{};
  const auto& picture = *static_cast<const StoredPicture*>(data);
  auto held = std::make_unique<Shared>(picture.pixels());
  if (!*held)
    return cairo_image_surface_create(CAIRO_FORMAT_ARGB32, picture.width(), picture.height());
  // Cairo only reads the pixels of a source.
  auto* pixels =
      reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>((*held)->pixels.data()));
  cairo_surface_t* const surface = cairo_image_surface_create_for_data(
      pixels, CAIRO_FORMAT_ARGB32, picture.width(), picture.height(), picture.width() * 4);
  const auto letGo = [](void* shared) { delete static_cast<Shared*>(shared); };
  if (cairo_surface_set_user_data(surface, &key, held.get(), letGo) == CAIRO_STATUS_SUCCESS)
    static_cast<void>(held.release());
  attachKey(surface, picture);
  return surface;
}

void hidePixels(cairo_pattern_t*, void*, cairo_surface_t* surface) {
  cairo_surface_destroy(surface);
}

}  // namespace

void PaperPictures::use(cairo_t* context, const StoredPicture& picture) {
  if (!useJpeg(context, picture)) usePixels(context, picture);
}

// A surface on which nothing was drawn lends the file its size: what is written is the file.
bool PaperPictures::useJpeg(cairo_t* context, const StoredPicture& picture) {
  auto known = jpegs_.find(picture.key());
  if (known == jpegs_.end()) {
    auto file = picture.jpeg();
    if (!file || jpeg_bytes_ + file->size() > kMostJpegBytes) return false;
    jpeg_bytes_ += file->size();
    const cairo_rectangle_t extents = {0, 0, double(picture.width()), double(picture.height())};
    CairoOwned<cairo_surface_t> surface(
        cairo_recording_surface_create(CAIRO_CONTENT_COLOR, &extents));
    attach(surface.get(), CAIRO_MIME_TYPE_JPEG, std::move(file));
    attachKey(surface.get(), picture);
    known = jpegs_.emplace(picture.key(), std::move(surface)).first;
  }
  cairo_set_source_surface(context, known->second.get(), 0, 0);
  return true;
}

void PaperPictures::usePixels(cairo_t* context, const StoredPicture& picture) {
  shown_.push_back(picture.shared_from_this());
  const OwnedPattern pattern(cairo_pattern_create_raster_source(
      const_cast<StoredPicture*>(&picture), CAIRO_CONTENT_COLOR_ALPHA, picture.width(),
      picture.height()));
  cairo_raster_source_pattern_set_acquire(pattern.get(), showPixels, hidePixels);
  cairo_set_source(context, pattern.get());
}

void PaperPictures::endPage() {
  jpegs_.clear();
  jpeg_bytes_ = 0;
  shown_.clear();
}

}  // namespace qor
