#include "support/recording_canvas.h"

#include <cmath>
#include <sstream>

#include "document/code_page.h"
#include "platform/pictures/picture_store.h"
#include "render/page_walk.h"
#include "support/page_picture.h"
#include "support/report_reader.h"

namespace qor::test {
namespace {

std::string text(Point point) {
  return std::to_string(point.x) + "," + std::to_string(point.y);
}

// Characters beyond ASCII as <number>.
std::string text(std::u32string_view characters) {
  std::ostringstream out;
  for (const char32_t c : characters)
    if (c >= 32 && c < 127)
      out << static_cast<char>(c);
    else
      out << "<" << std::hex << static_cast<unsigned>(c) << ">";
  return out.str();
}

}  // namespace

std::string RecordingCanvas::tools() const {
  std::ostringstream out;
  out << " pen " << static_cast<int>(pen().style) << " " << pen().width << " " << std::hex
      << pen().color << std::dec << " brush " << static_cast<int>(brush().style) << " " << std::hex
      << brush().color;
  return out.str();
}

void RecordingCanvas::rectangle(const Rect& rect) {
  note("rectangle " + text(rect) + tools());
}

void RecordingCanvas::drawPicture(const StoredPicture& picture, const Rect& rect) {
  note("picture " + std::to_string(picture.width()) + "x" + std::to_string(picture.height()) +
       " at " + text(rect));
}

void RecordingCanvas::line(Point start, Point end) {
  note("line " + text(start) + " " + text(end) + tools());
}

void RecordingCanvas::paintText(const TextRun& run) {
  std::ostringstream out;
  out << "text " << std::lround(run.x) << "," << std::lround(run.y) << " \"" << text(run.text)
      << "\" " << run.record.faceName() << " " << run.record.Height << "x" << run.record.Width
      << " weight " << run.record.Weight;
  if (run.record.Italic != 0) out << " italic";
  if (run.record.Underline != 0) out << " underline";
  if (run.record.StrikeOut != 0) out << " strikeout";
  if (run.record.Escapement != 0) out << " turned " << run.record.Escapement;
  out << " color " << std::hex << run.color;
  note(out.str());
}

void RecordingCanvas::clipText(const Rect& rect) {
  note("clip " + text(rect));
}

std::string drawn(VDocPage& page) {
  RecordingCanvas canvas;
  DrawPage(page, canvas);
  return canvas.record();
}

std::string drawn(std::string_view bytes, int codePage) {
  TestReport report(bytes, codePage);
  LoadCodePage(codePage);
  return drawn(report.page());
}

}  // namespace qor::test
