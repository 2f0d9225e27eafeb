// Letters as shapes.
#pragma once

#include <cstdint>
#include <functional>

#include "platform/pdf/pdf_content.h"

namespace qor {

class FontFace;

// Fills the outline of a face's glyph, and strokes it where `bold` says so. `place` maps its
// points, in ems from the start of its baseline, y upwards, to the page's coordinates.
void drawGlyphOutline(const FontFace& face, std::uint32_t glyph, bool bold, PdfContent& content,
                      const std::function<PdfPoint(double, double)>& place);

}  // namespace qor
