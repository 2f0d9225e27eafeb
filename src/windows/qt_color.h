// Colours for Qt.
#pragma once

#include <QColor>

#include "platform/canvas/color.h"

namespace qor {

inline QColor qtColor(Color color) {
  return QColor::fromRgb(pixelOf(color));
}

inline Color canvasColor(const QColor& color) {
  return static_cast<Color>(color.red() | color.green() << 8 | color.blue() << 16);
}

}  // namespace qor
