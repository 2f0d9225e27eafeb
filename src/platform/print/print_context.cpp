// Jobs: a PDF document on its way to a printer or a file.
#include "platform/print/print_context.h"

#include "base/units.h"
#include "platform/print/file_job.h"
#include "platform/print/pdf_pages.h"
#include "platform/print/print_system.h"

namespace qor {
namespace {

std::unique_ptr<PrintJob> openJob(const Printer& printer, const DeviceMode& mode,
                                  const DocumentInfo& info) {
  if (!info.output.empty()) return std::make_unique<FileJob>(info.output);
  JobTicket ticket = ticketOf(printer, mode);
  ticket.title = info.title;
  ticket.fallbackFile = info.fallbackFile;
  return printSystem().open(printer, ticket);
}

PdfSheet pdfSheetOf(const Printer& printer, const DeviceMode& mode, const DeviceCaps& caps) {
  const MediaSize size = mediaOf(printer, mode).size;
  const bool turned = mode.dmOrientation == kLandscape;
  return {(turned ? size.length : size.width) * kPointsPerHundredth,
          (turned ? size.width : size.length) * kPointsPerHundredth,
          {caps.PhysicalWidth, caps.PhysicalHeight},
          {caps.LogPixelsX, caps.LogPixelsY}};
}

Rect printableArea(const DeviceCaps& caps) {
  return {caps.PhysicalOffsetX, caps.PhysicalOffsetY, caps.PhysicalOffsetX + caps.HorzRes,
          caps.PhysicalOffsetY + caps.VertRes};
}

}  // namespace

struct PrintContext::Document {
  Document(std::unique_ptr<PrintJob> opened, const PdfSheet& sheet, const std::string& title)
      : job(std::move(opened)), pages(*job, sheet, title) {}

  std::unique_ptr<PrintJob> job;
  PdfPages pages;
  bool empty = true;
};

PrintContext::PrintContext(const Printer& printer, const DeviceMode& mode)
    : printer_(printer), mode_(mode), caps_(deviceCaps(printer, mode)) {
}

PrintContext::~PrintContext() = default;

void PrintContext::startDocument(const DocumentInfo& info) {
  document_ = std::make_unique<Document>(openJob(printer_, mode_, info),
                                         pdfSheetOf(printer_, mode_, caps_), info.title);
  file_ = document_->job->file();
}

Canvas& PrintContext::startPage() {
  Canvas& canvas = document_->pages.canvas();
  canvas.setClip(printableArea(caps_));
  document_->empty = false;
  return canvas;
}

void PrintContext::endPage() {
  document_->pages.endPage();
}

void PrintContext::endDocument() {
  if (!document_->empty) {
    document_->pages.finish();
    document_->job->finish();
  }
  document_.reset();
}

}  // namespace qor
