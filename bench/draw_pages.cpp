// Draws the pages of a report as PDF, with or without the tags that tell readers of its lines:
//   draw_pages REPORT.txt OUT.pdf [tagged]
#include <cstdio>

#include "base/app_options.h"
#include "document/code_page.h"
#include "document/page_loop.h"
#include "document/vdoc.h"
#include "platform/pdf/pdf_canvas.h"
#include "platform/system/output_file.h"
#include "render/page_walk.h"
#include "render/sheet.h"

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fputs("draw_pages REPORT.txt OUT.pdf [tagged]\n", stderr);
    return 2;
  }
  constexpr int kDpi = 600;
  qor::AppOptions.FileName = argv[1];
  qor::VDoc doc;
  doc.ScanPages(false);
  doc.Settings.Prn = qor::sheetAsDevice(doc.Settings.Page, kDpi);
  qor::LoadCodePage(doc.Settings.Page.BaseCodePage);
  qor::OutputFile file(argv[2]);
  qor::PdfPages pages(
      file, {.title = "", .language = "", .producer = "", .created = 0, .tagged = argc > 3});
  pages.setPageSize(595, 842);
  const qor::VSetPrn& sheet = doc.Settings.Prn;
  qor::PdfCanvas canvas(pages, {sheet.PhysicalWidth, sheet.PhysicalHeight}, {kDpi, kDpi});
  const auto all = [](std::int32_t) { return true; };
  qor::forEachPage(doc, qor::PageMode::plain, {}, all, [&](qor::VDocPage& page) {
    canvas.beginPage();
    canvas.reset();
    qor::DrawPage(page, canvas);
    canvas.endPage();
  });
  pages.finish();
  file.commit();
}
