// The plain text of a report, drawn line by line into a PDF by Qt:
//   print_with_qt REPORT.txt OUT.pdf
#include <QFont>
#include <QGuiApplication>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <cstdio>

#include "report_lines.h"

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  if (argc != 3) {
    std::fputs("print_with_qt REPORT.txt OUT.pdf\n", stderr);
    return 2;
  }
  QPdfWriter writer(argv[2]);
  writer.setResolution(72);
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins({});
  QPainter painter(&writer);
  QFont font(kFontFamily);
  font.setPointSizeF(kFontSize);
  painter.setFont(font);
  bool newPage = false;
  forEachLine(
      readAll(argv[1]),
      [&](std::string_view text, double y) {
        if (newPage) writer.newPage();
        newPage = false;
        painter.drawText(QPointF(0, y), QString::fromLatin1(text.data(), qsizetype(text.size())));
      },
      [&newPage] { newPage = true; });
}
