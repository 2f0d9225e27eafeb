// A report of any bytes: finding its pages, reading them, drawing them, writing their lines.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "base/app_options.h"
#include "document/code_page.h"
#include "document/loaded_page.h"
#include "document/vdoc.h"
#include "export/html/html_export.h"
#include "export/text/text_export.h"
#include "platform/canvas/bitmap_canvas.h"
#include "render/page_walk.h"
#include "scratch.h"

namespace {

using namespace qor;

constexpr std::int32_t kMostPages = 40;
constexpr int kDpi = 48;
constexpr std::string_view kName = "report.txt";

const fuzz::Scratch scratch;

void writeLines(VDocPage& page) {
  std::string output;
  for (const VDocStr& line : page.lines()) {
    LineToText(line, output);
    LineToHtml(line, "report", output);
    output.clear();
  }
}

void drawPages(VDoc& doc) {
  static BitmapCanvas bitmap(400, 565, kDpi);
  bitmap.canvas().setMapping({kDpi, kDpi, 0, 0});
  LoadCodePage(doc.Settings.Page.BaseCodePage);
  for (std::int32_t number = 1; number <= std::min(doc.PageCount, kMostPages); ++number) {
    const LoadedPage page(doc, number);
    writeLines(*page);
    DrawPage(*page, bitmap.canvas());
  }
}

void readPages(VDoc& doc) {
  for (std::int32_t number = 1; number <= std::min(doc.PageCount, kMostPages); ++number)
    writeLines(*LoadedPage(doc, number, PageMode::sheets));
}

void readComplete(std::string_view bytes) {
  AppOptions.DynamicMode = false;
  AppOptions.FileName = scratch.write(kName, bytes);
  VDoc doc;
  doc.ScanPages(false);
  drawPages(doc);
}

// As the preview reads a report whose writer is at work.
void readGrowing(std::string_view bytes) {
  AppOptions.DynamicMode = true;
  AppOptions.FileName = scratch.write(kName, bytes.substr(0, bytes.size() / 2));
  VDoc doc;
  doc.ScanFirstPage();
  readPages(doc);
  doc.ScanPages(false);
  scratch.write(kName, bytes);
  if (doc.FileChanged()) doc.ScanPages(true);
  readPages(doc);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  AppOptions.DocCodePage = 866;
  scratch.clear();
  fuzz::tolerant([=] { readComplete(fuzz::textOf(data, size)); });
  fuzz::tolerant([=] { readGrowing(fuzz::textOf(data, size)); });
  return 0;
}
