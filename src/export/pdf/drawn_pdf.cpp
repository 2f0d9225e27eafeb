// The pages' canvas and their document.
#include "export/pdf/drawn_pdf.h"

#include "base/units.h"
#include "document/code_page.h"
#include "document/report_information.h"
#include "document/side_picture.h"
#include "platform/pdf/pdf_canvas.h"
#include "platform/system/messages.h"
#include "platform/system/output_file.h"
#include "render/page_walk.h"
#include "render/sheet.h"

namespace qor {
namespace {

// That of the printer that makes PDF files: the widths of barcodes are whole dots.
constexpr int kDpi = 600;

PdfInformation taggedInformation(const ExportTask& task) {
  const RunOptions& run = task.startedWith;
  PdfInformation information =
      informationOf(run, titleOf(run), task.doc.Settings.Page.BaseCodePage);
  information.tagged = true;
  return information;
}

void drawPages(const ExportTask& task, PdfPages& pages) {
  VSet& settings = task.doc.Settings;
  settings.Prn = sheetAsDevice(settings.Page, kDpi);
  settings.Scr = screenForPrint(settings.Page, settings.Prn, kPictureDpi);
  const auto [width, height] = sheetSizeOf(settings.Page);
  pages.setPageSize(pointsFromTwips(realTwipsFromMillimetres(width)),
                    pointsFromTwips(realTwipsFromMillimetres(height)));
  PdfCanvas canvas(pages, {settings.Prn.PhysicalWidth, settings.Prn.PhysicalHeight}, {kDpi, kDpi});
  forEachPage(task.doc, task.mode, task.progress, [&](VDocPage& page) {
    canvas.beginPage();
    canvas.reset();
    DrawPage(page, canvas);
    canvas.endPage();
  });
}

}  // namespace

ExportResult exportDrawnPdf(const ExportTask& task) {
  if (task.doc.PageCount == 0) {
    showWarning(task.target + ": the report has no pages");
    return ExportResult::stopped;
  }
  LoadCodePage(task.doc.Settings.Page.BaseCodePage);
  NewSidePictures pictures;
  OutputFile file(task.target);
  PdfPages pages(file, taggedInformation(task));
  drawPages(task, pages);
  pages.finish();
  file.commit();
  pictures.keep();
  return ExportResult::done;
}

}  // namespace qor
