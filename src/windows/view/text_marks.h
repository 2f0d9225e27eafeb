// Where lines and characters of a page are seen.
#pragma once

#include <QPolygonF>
#include <cstddef>
#include <vector>

namespace qor {

class PageMapping;
class TextMap;
struct TextLine;
struct TextSpan;

// The lines that take some of the height of a rectangle, which is pixels of the view.
std::vector<std::size_t> linesIn(const QRectF& seen, const TextMap& map,
                                 const PageMapping& mapping);

// Outlines of characters of a line, in pixels of the view: one for each stretch of it.
std::vector<QPolygonF> outlinesOf(const TextLine& line, const TextSpan& span,
                                  const PageMapping& mapping);

}  // namespace qor
