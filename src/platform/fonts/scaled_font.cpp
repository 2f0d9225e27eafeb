// Faces at a size.
#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/fonts/font_catalogue.h"
#include "platform/fonts/fonts.h"

namespace qor {
namespace {

constexpr double kDefaultEm = 240;      // 12 points in twips
constexpr double kLargestSize = 1e6;    // twips; far beyond any sheet
constexpr std::size_t kMaxFonts = 128;  // kept at a time
constexpr std::size_t kMaxGlyphs = 4096;

std::int32_t rounded(double value) {
  return static_cast<std::int32_t>(std::lround(value));
}

double emSizeOf(const LogFont& font, const FaceMeasures& face) {
  const double size = std::min(std::abs(double(font.Height)), kLargestSize);
  if (font.Height < 0) return size;
  if (font.Height > 0) return size * face.unitsPerEm / std::max(1.0, face.ascent + face.descent);
  return kDefaultEm;
}

class OutlineFont : public ScaledFont {
 public:
  explicit OutlineFont(const LogFont& font)
      : request_{std::string(font.faceName()), font.Weight, font.Italic != 0},
        face_(matchFace(request_)),
        em_size_(emSizeOf(font, face_->measures())) {
    measure(std::min(std::abs(double(font.Width)), kLargestSize));
  }

  const TextMetrics& metrics() const override { return metrics_; }
  double emSize() const override { return em_size_; }
  double widthScale() const override { return width_scale_; }

  TextStroke underline() const override {
    return {scaled(face_->measures().underlineOffset),
            scaled(face_->measures().underlineThickness)};
  }
  TextStroke strikeOut() const override {
    return {scaled(face_->measures().strikeOutOffset),
            scaled(face_->measures().strikeOutThickness)};
  }

  Glyph glyph(char32_t character) const override {
    const char32_t drawn = character < ' ' ? U' ' : character;
    if (drawn < common_.size()) {
      Glyph& kept = common_[drawn];
      if (kept.face == nullptr) kept = findGlyph(drawn);
      return kept;
    }
    if (others_.size() >= kMaxGlyphs) others_.clear();
    const auto [place, isNew] = others_.try_emplace(drawn);
    if (isNew) place->second = findGlyph(drawn);
    return place->second;
  }

 private:
  double scaled(double fontUnits) const {
    return fontUnits * em_size_ / face_->measures().unitsPerEm;
  }

  void measure(double width) {
    const FaceMeasures& face = face_->measures();
    metrics_.ascent = rounded(scaled(face.ascent));
    metrics_.height = rounded(scaled(face.ascent + face.descent));
    metrics_.descent = metrics_.height - metrics_.ascent;
    metrics_.externalLeading = rounded(scaled(face.externalLeading));
    const double natural = scaled(face.averageWidth);
    if (width > 0 && natural > 0) width_scale_ = width / natural;
    metrics_.averageWidth = rounded(natural * width_scale_);
  }

  // A character that no face has is drawn as the face's own mark for missing ones.
  Glyph findGlyph(char32_t character) const {
    std::shared_ptr<const FontFace> face = face_;
    std::uint32_t index = face->glyphIndex(character);
    if (index == 0) {
      if (auto fallback = fallbackFace(request_, character)) {
        face = std::move(fallback);
        index = face->glyphIndex(character);
      }
    }
    const double unit = em_size_ * width_scale_ / face->measures().unitsPerEm;
    return {face.get(), index, face->advance(index) * unit};
  }

  FaceRequest request_;
  std::shared_ptr<const FontFace> face_;
  double em_size_;
  double width_scale_ = 1;
  TextMetrics metrics_;
  mutable std::array<Glyph, 256> common_{};
  mutable std::unordered_map<char32_t, Glyph> others_;
};

struct KeptFont {
  LogFont record;
  std::shared_ptr<const ScaledFont> font;
};

// Rotation and strokes are drawn, not part of the font.
LogFont sizeAndFaceOf(LogFont font) {
  font.Escapement = font.Orientation = 0;
  font.Underline = font.StrikeOut = 0;
  return font;
}

}  // namespace

std::shared_ptr<const ScaledFont> scaledFont(const LogFont& font) {
  static std::vector<KeptFont> kept;  // the last used at the end
  const LogFont record = sizeAndFaceOf(font);
  const auto found = std::find_if(kept.rbegin(), kept.rend(),
                                  [&](const KeptFont& entry) { return entry.record == record; });
  if (found != kept.rend()) {
    std::rotate(found.base() - 1, found.base(), kept.end());
    return kept.back().font;
  }
  if (kept.size() == kMaxFonts) kept.erase(kept.begin());
  kept.push_back({record, std::make_shared<const OutlineFont>(record)});
  return kept.back().font;
}

}  // namespace qor
