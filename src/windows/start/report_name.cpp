// Names of reports.
#include "windows/start/report_name.h"

#include <QFontMetrics>

#include "base/path.h"
#include "platform/qt/qt_text.h"

namespace qor {
namespace {

// Widths in letters of the font.
constexpr int kMenuPart = 40;
constexpr int kMessagePath = 70;

// Ends of lines and tabs, and signs that turn the way of writing.
bool isUnseen(QChar c) {
  switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph: return true;
    default: return false;
  }
}

QString oneLine(std::string_view text) {
  QString line = qtText(text);
  for (QChar& c : line)
    if (isUnseen(c)) c = QChar::ReplacementCharacter;
  return line;
}

QString elided(const QString& text, int letters, const QFontMetrics& metrics) {
  return metrics.elidedText(text, Qt::ElideMiddle, letters * metrics.averageCharWidth());
}

}  // namespace

ReportName::ReportName(const std::string& path)
    : file(oneLine(fileNameOf(path))), directory(oneLine(directoryOf(path))) {
  if (directory.size() > 1) directory.chop(1);
}

QString shownPath(const std::string& path) {
  return oneLine(path);
}

QString shortPath(const std::string& path, const QFontMetrics& metrics) {
  return elided(shownPath(path), kMessagePath, metrics);
}

QString menuTextOf(const std::string& path, const QFontMetrics& metrics) {
  const ReportName name(path);
  const QString text =
      elided(name.file, kMenuPart, metrics) + "    " + elided(name.directory, kMenuPart, metrics);
  return QString(text).replace('&', "&&");
}

}  // namespace qor
