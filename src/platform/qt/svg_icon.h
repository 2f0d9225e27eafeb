// Icons drawn in the colours of the window, crisp at any size and on light and dark grounds.
#pragma once

#include <QIcon>
#include <QString>

namespace qor {

// The icon of an SVG file or resource, for a button or a line of a menu. What is "currentColor" in
// it takes the colour of the text there, grayed where it is disabled; on the bar of a menu all of
// it.
enum class IconPlace { button, menu };
QIcon svgIcon(const QString& file, IconPlace place);

}  // namespace qor
