// Icons drawn in the colours of the window, crisp at any size and on light and dark grounds.
#pragma once

#include <QIcon>
#include <QString>

namespace qor {

// The icon of an SVG file or resource. What is "currentColor" in it takes the colour of text on
// buttons, grayed where a button is disabled.
QIcon svgIcon(const QString& file);

}  // namespace qor
