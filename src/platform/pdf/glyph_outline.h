// Letters as shapes.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

namespace qor {

class FontFace;
class PdfContent;

// Fills the outline of a face's glyph, and strokes it where `bold` says so. `place` maps its
// points, in ems from the start of its baseline, y upwards, to the page's coordinates.
void drawGlyphOutline(const FontFace& face, std::uint32_t glyph, bool bold, PdfContent& content,
                      const std::function<std::pair<double, double>(double, double)>& place);

}  // namespace qor
