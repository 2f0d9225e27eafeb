// Fonts as layout sees them: metrics and advances of the outline, the same for every device.
#pragma once

#include <cstdint>
#include <memory>

#include "platform/fonts/log_font.h"

namespace qor {

class FontFace;

// In logical units, each rounded once.
struct TextMetrics {
  std::int32_t ascent = 0;
  std::int32_t descent = 0;
  std::int32_t height = 0;  // ascent + descent
  std::int32_t externalLeading = 0;
  std::int32_t averageWidth = 0;
};

struct Glyph {
  const FontFace* face = nullptr;  // the font's own, or a fallback that has the character
  std::uint32_t index = 0;
  double advance = 0;  // logical units, unhinted
};

// A stroke along the text: its middle below the baseline (negative: above) and its thickness, in
// logical units.
struct TextStroke {
  double offset = 0;
  double thickness = 0;
};

// A face at a size. Lives as long as somebody holds it.
class ScaledFont {
 public:
  virtual ~ScaledFont() = default;
  virtual const TextMetrics& metrics() const = 0;

  // Bytes below 32 and the character 0 count as blanks.
  virtual Glyph glyph(char32_t character) const = 0;

  virtual double emSize() const = 0;      // logical units
  virtual double widthScale() const = 0;  // 1: the natural width
  virtual TextStroke underline() const = 0;
  virtual TextStroke strikeOut() const = 0;
};

// The font for a record. Height < 0 is the em size, > 0 the height of the cell, 0 means 12 points;
// a Width other than 0 makes the average character that wide. A face that the system doesn't have
// is replaced by what fontconfig names. Fonts used lately are kept. Throws FileError on a system
// without any font.
std::shared_ptr<const ScaledFont> scaledFont(const LogFont& font);

}  // namespace qor
