// The pages' canvas and their document.
#include "export/pdf/drawn_pdf.h"

#include "base/errors.h"
#include "base/units.h"
#include "document/code_page.h"
#include "document/report_information.h"
#include "document/side_picture.h"
#include "platform/pdf/pdf_canvas.h"
#include "platform/print/print_queues.h"
#include "platform/system/messages.h"
#include "platform/system/output_file.h"
#include "render/page_walk.h"
#include "render/sheet.h"

namespace qor {
namespace {

// Throws FileError for one without an area.
SheetSize sheetOf(const ExportTask& task) {
  const SheetSize sheet = sheetSizeOf(task.doc.Settings.Page);
  if (sheet.width > 0 && sheet.height > 0) return sheet;
  throw FileError(task.target + ": a page can't have a sheet without an area",
                  ErrorKind::cannotWrite);
}

void drawPages(const ExportTask& task, PdfPages& pages) {
  VSet& settings = task.doc.Settings;
  // As on the printer that makes PDF files: the widths of barcodes are whole dots.
  settings.Prn = sheetAsDevice(settings.Page, kUsualDpi);
  settings.Scr = screenForPrint(settings.Page, settings.Prn, kPictureDpi);
  const auto [width, height] = sheetOf(task);
  pages.setPageSize(pointsFromTwips(realTwipsFromMillimetres(width)),
                    pointsFromTwips(realTwipsFromMillimetres(height)));
  PdfCanvas canvas(pages, {settings.Prn.PhysicalWidth, settings.Prn.PhysicalHeight},
                   {kUsualDpi, kUsualDpi});
  forEachPage(task, [&](VDocPage& page) {
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
  const RunOptions& run = task.startedWith;
  PdfPages pages(file, drawnInformationOf(run, titleOf(run), task.doc.Settings.Page.BaseCodePage));
  if (task.processors > 1) pages.allowBackground();
  drawPages(task, pages);
  pages.finish();
  file.commit();
  pictures.keep();
  return ExportResult::done;
}

}  // namespace qor
