// Where characters of a page are seen.
#pragma once

#include <QPolygonF>
#include <cstddef>
#include <vector>

#include "render/text_stretch.h"
#include "window_model/page_mapping.h"

namespace qor {

// Outlines of `count` characters of a line, in pixels of the view: one for each stretch of it.
std::vector<QPolygonF> outlinesOf(const TextLine& line, std::size_t first, std::size_t count,
                                  const PageMapping& mapping);

}  // namespace qor
