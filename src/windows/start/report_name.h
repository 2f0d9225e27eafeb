// How a report is named on the screen: whatever its path holds, it stays one line of some width.
#pragma once

#include <QString>
#include <string>

class QFontMetrics;

namespace qor {

// The name of its file, and the directory that it is in, for lists that show the two apart.
struct ReportName {
  explicit ReportName(const std::string& path);

  QString file;
  QString directory;
};

// The path in one line; what isn't seen in it, or would end the line, has a mark in its place.
QString shownPath(const std::string& path);

// The same for messages, its middle left out where it is long.
QString shortPath(const std::string& path, const QFontMetrics& metrics);

// For a menu: the name, and the directory behind it, each no wider than a menu should be.
QString menuTextOf(const std::string& path, const QFontMetrics& metrics);

}  // namespace qor
