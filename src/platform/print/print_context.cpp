// Jobs: a PDF document on its way to a printer or a file.
#include "platform/print/print_context.h"

#include <utility>

#include "base/units.h"
#include "platform/pdf/pdf_canvas.h"
#include "platform/print/file_job.h"
#include "platform/print/print_system.h"

namespace qor {
namespace {

std::unique_ptr<PrintJob> openJob(const Printer& printer, const DeviceMode& mode,
                                  const DocumentInfo& info) {
  if (!info.output.empty()) return std::make_unique<FileJob>(info.output);
  JobTicket ticket = ticketOf(printer, mode);
  ticket.title = info.document.title;
  ticket.fallbackFile = info.fallbackFile;
  return printSystem().open(printer, ticket);
}

// As the sheet lies.
MediaSize sheetSize(const Printer& printer, const DeviceMode& mode) {
  MediaSize size = mediaOf(printer, mode).size;
  if (mode.dmOrientation == kLandscape) std::swap(size.width, size.length);
  return size;
}

// Tags are for those who read a file; a printer has no use of them.
PdfInformation forReaderOf(PdfInformation information, const PrintJob& job) {
  if (job.file().empty()) information.tagged = false;
  return information;
}

Rect printableArea(const DeviceCaps& caps) {
  return {caps.PhysicalOffsetX, caps.PhysicalOffsetY, caps.PhysicalOffsetX + caps.HorzRes,
          caps.PhysicalOffsetY + caps.VertRes};
}

}  // namespace

struct PrintContext::Document {
  Document(std::unique_ptr<PrintJob> opened, const DocumentInfo& info, MediaSize sheet,
           const DeviceCaps& caps)
      : job(std::move(opened)),
        pages(*job, forReaderOf(info.document, *job)),
        canvas(pages, {caps.PhysicalWidth, caps.PhysicalHeight},
               {caps.LogPixelsX, caps.LogPixelsY}) {
    pages.setPageSize(sheet.width * kPointsPerHundredth, sheet.length * kPointsPerHundredth);
  }

  std::unique_ptr<PrintJob> job;
  PdfPages pages;
  PdfCanvas canvas;
  bool empty = true;
};

PrintContext::PrintContext(const Printer& printer, const DeviceMode& mode)
    : printer_(printer), mode_(mode), caps_(deviceCaps(printer, mode)) {
}

PrintContext::~PrintContext() = default;

void PrintContext::startDocument(const DocumentInfo& info) {
  document_ = std::make_unique<Document>(openJob(printer_, mode_, info), info,
                                         sheetSize(printer_, mode_), caps_);
  file_ = document_->job->file();
}

Canvas& PrintContext::startPage() {
  PdfCanvas& canvas = document_->canvas;
  canvas.beginPage();
  canvas.setClip(printableArea(caps_));
  document_->empty = false;
  return canvas;
}

void PrintContext::endPage() {
  document_->canvas.endPage();
}

void PrintContext::endDocument() {
  if (!document_->empty) {
    document_->pages.finish();
    document_->job->finish();
  }
  document_.reset();
}

}  // namespace qor
