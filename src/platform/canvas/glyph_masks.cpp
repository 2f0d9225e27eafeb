// Glyphs as coverage of dots, by FreeType.
#include "platform/canvas/glyph_masks.h"

#include FT_OUTLINE_H
#include FT_SIZES_H
#include FT_SYNTHESIS_H

#include "base/units.h"

namespace qor {
namespace {

constexpr std::size_t kMaxMasks = 8192;
constexpr std::size_t kMaxBytes = 8U << 20;

// A size of our own for the face, because whoever else draws with it counts on finding its own.
class OwnSize {
 public:
  explicit OwnSize(FT_Face face) : face_(face), before_(face->size) {
    if (FT_New_Size(face, &size_) == 0) FT_Activate_Size(size_);
  }
  ~OwnSize() {
    if (size_ != nullptr) FT_Done_Size(size_);
    FT_Activate_Size(before_);
  }
  OwnSize(const OwnSize&) = delete;
  OwnSize& operator=(const OwnSize&) = delete;

  bool set(std::int32_t width, std::int32_t height) {
    return size_ != nullptr &&
           FT_Set_Char_Size(face_, width, height, kPointsPerInch, kPointsPerInch) == 0;
  }

 private:
  FT_Face face_;
  FT_Size before_;
  FT_Size size_ = nullptr;
};

GlyphMask copyOf(const FT_GlyphSlot slot) {
  const FT_Bitmap& bitmap = slot->bitmap;
  GlyphMask mask{slot->bitmap_left,
                 -slot->bitmap_top,
                 static_cast<int>(bitmap.width),
                 static_cast<int>(bitmap.rows),
                 {}};
  mask.coverage.reserve(std::size_t{bitmap.width} * bitmap.rows);
  for (unsigned row = 0; row < bitmap.rows; ++row) {
    const unsigned char* start = bitmap.buffer + static_cast<std::ptrdiff_t>(row) * bitmap.pitch;
    mask.coverage.insert(mask.coverage.end(), start, start + bitmap.width);
  }
  return mask;
}

// Hinted vertically only, which sharpens the rows and leaves every width alone.
GlyphMask render(const MaskKey& key) {
  const FT_Face face = key.face->handle();
  OwnSize size(face);
  constexpr auto flags = FT_LOAD_TARGET_LIGHT | FT_LOAD_NO_BITMAP | FT_LOAD_IGNORE_TRANSFORM;
  if (!size.set(key.width, key.height) || FT_Load_Glyph(face, key.glyph, flags) != 0) return {};
  const FT_GlyphSlot slot = face->glyph;
  if (key.face->style().syntheticBold) FT_GlyphSlot_Embolden(slot);
  if (key.face->style().syntheticSlant) FT_GlyphSlot_Oblique(slot);
  FT_Outline_Translate(&slot->outline, key.phase * 64 / kMaskPhases, 0);
  if (FT_Render_Glyph(slot, FT_RENDER_MODE_NORMAL) != 0) return {};
  return copyOf(slot);
}

}  // namespace

std::size_t GlyphMasks::Hash::operator()(const MaskKey& key) const {
  constexpr std::uint64_t spread = 0x9E3779B97F4A7C15;  // 2^64 divided by the golden ratio
  auto hash = reinterpret_cast<std::uintptr_t>(key.face);
  for (const std::uint64_t part :
       {std::uint64_t{key.glyph}, static_cast<std::uint64_t>(key.width),
        static_cast<std::uint64_t>(key.height), static_cast<std::uint64_t>(key.phase)}) {
    hash = (hash ^ part) * spread;
  }
  return hash >> 16;
}

const GlyphMask& GlyphMasks::get(const MaskKey& key) {
  if (masks_.size() >= kMaxMasks || bytes_ > kMaxBytes) {
    masks_.clear();
    bytes_ = 0;
  }
  const auto [place, isNew] = masks_.try_emplace(key);
  if (isNew) {
    place->second = render(key);
    bytes_ += place->second.coverage.size();
  }
  return place->second;
}

}  // namespace qor
