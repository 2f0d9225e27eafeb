// Reports as PDF documents.
#include "export/pdf/pdf_export.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "barcode/barcode_picture.h"
#include "base/path.h"
#include "base/units.h"
#include "document/code_page.h"
#include "document/report_information.h"
#include "document/side_picture.h"
#include "export/pdf/drawn_pdf.h"
#include "export/pdf/pdf_losses.h"
#include "export/pdf/pdf_markup.h"
#include "export/pdf/pdf_writer.h"
#include "platform/print/pdf_file_printer.h"
#include "platform/system/directory.h"
#include "platform/system/input_file.h"
#include "platform/system/messages.h"
#include "platform/system/output_file.h"
#include "settings/printers.h"

namespace qor {
namespace {

constexpr std::int32_t kUprightWidth = 595;  // points
constexpr std::int32_t kLandscapeWidth = 842;

std::string missingText(const std::string& path, int codePage) {
  if (codePage == 1251) return path + " файл не найден!";
  if (codePage == 1254) return path + " dosyas? bulunamad?!";
  return "File " + path + " was not found!";
}

// A code page that isn't as the system has it, or that the system doesn't have. Throws as
// LoadCodePage.
void defineCodePage(PdfDocument& document, int codePage) {
  const std::string name = "cp" + std::to_string(codePage);
  if (codePage != 857 && document.hasEncoding(name)) return;
  LoadCodePage(codePage);
  PdfEncoding encoding = encodingOfCodePage(codePage);
  std::copy(CodePageTable.begin(), CodePageTable.end(), encoding.begin() + 128);
  document.defineEncoding(name, encoding);
}

// Keeps what a job on another printer would leave behind: the chosen one stays as it was.
class ChosenPrinter {
 public:
  explicit ChosenPrinter(VDoc& doc)
      : doc_(doc), scale_(doc.PrintScale), flag_(doc.PrintScaleFlag), metrics_(gPrintMetrics) {}
  ~ChosenPrinter() {
    doc_.PrintScale = scale_;
    doc_.PrintScaleFlag = flag_;
    gPrintMetrics = metrics_;
  }
  ChosenPrinter(const ChosenPrinter&) = delete;
  ChosenPrinter& operator=(const ChosenPrinter&) = delete;

 private:
  VDoc& doc_;
  std::int32_t scale_;
  bool flag_;
  SheetMeasures metrics_;
};

// Stopped where the job came to nothing, for a reason that is told.
ExportResult exportByPrinter(const ExportTask& task) {
  const ChosenPrinter chosen(task.doc);
  NewSidePictures pictures;
  const ExportOptions& options = task.options;
  task.doc.PrintScale = options.ScaleToPaper ? options.PaperScale : 100;
  task.doc.PrintScaleFlag = options.ScaleToPaper;
  RunOptions run = task.startedWith;
  run.printer = kPdfFilePrinter;
  const PrintOutcome outcome = task.doc.PrintToFile(run, task.target, task.progress);
  if (outcome.end == PrintOutcome::End::stopped) throw StoppedError();
  if (!outcome.notice.empty()) showWarning(outcome.notice);
  if (outcome.end != PrintOutcome::End::printed) return ExportResult::stopped;
  pictures.keep();
  return ExportResult::done;
}

struct WidthRow {
  double fontHeight;  // points
  double divisor;
};
// Widths as the suite has always had them for the fonts that its reports use: no formula gives
// them.
constexpr WidthRow kWidthDivisors[] = {{10, 1.335}, {9, 1.295}, {8, 1.455}, {12, 1.39}, {14, 1.31}};
constexpr double kOtherDivisor = 1.35;

// Points. Pages may change the font, and the last one decides.
std::int32_t pageWidthOf(const ExportTask& task) {
  VDoc& doc = task.doc;
  if (task.mode != PageMode::pictures)
    return doc.Settings.Page.landscape() ? kLandscapeWidth : kUprightWidth;
  const double height = doc.FontAt(task.lastPage() + 1).Height;
  const auto* row =
      std::find_if(std::begin(kWidthDivisors), std::end(kWidthDivisors),
                   [height](const WidthRow& each) { return each.fontHeight == height; });
  const double divisor = row == std::end(kWidthDivisors) ? kOtherDivisor : row->divisor;
  return truncated(task.options.PreviewPageWidth / divisor);
}

PdfLosses writePages(const ExportTask& task, PdfDocument& document) {
  const int codePage = task.doc.Settings.Page.BaseCodePage;
  const std::string stem = sideFileStem(task.target);
  defineCodePage(document, codePage);
  PdfWriter writer(document, codePage, stem);
  PdfLossWatch losses;
  PdfLines lines(1);
  const std::int32_t lastPage = task.lastPage();
  const PdfLines pageEnd = {{std::string(1, kPageMark)}};
  forEachPage(task, [&](const VDocPage& page) {
    writeBarcodePicturesOf(page, stem);
    forEachLine(page, [&](const VDocStr& line) {
      lines.front().clear();
      LineToMarkup(line, lines, 0);
      writer.WritePdf(lines);
      losses.look(line);
    });
    if (page.Number != lastPage) writer.WritePdf(pageEnd);
  });
  writer.endPages(pageWidthOf(task));
  return losses.found();
}

// As a document that is told; stopped where the engine's resource file is missing.
ExportResult exportTold(ExportTask& task) {
  const std::string resources = programDirectory() + "pdflib.upr";
  if (!fileExists(resources)) {
    showWarning(missingText(resources, task.doc.Settings.Page.BaseCodePage));
    return ExportResult::stopped;
  }
  NewSidePictures pictures;
  OutputFile file(task.target);
  const RunOptions& run = task.startedWith;
  PdfDocument document(file, informationOf(run, titleOf(run), task.doc.Settings.Page.BaseCodePage));
  if (task.processors > 1) document.allowBackground();
  document.setResourceFile(resources);
  const PdfLosses losses = writePages(task, document);
  document.finish();
  file.commit();
  pictures.keep();
  task.notice = pdfNotice(losses);
  return ExportResult::done;
}

}  // namespace

ExportResult ExportPdf(ExportTask& task) {
  const ExportOptions& options = task.options;
  const ExportResult result = options.PrintToPdfPrinter ? exportByPrinter(task)
                              : options.DrawnPages      ? exportDrawnPdf(task)
                                                        : exportTold(task);
  if (result == ExportResult::done) task.files.push_back(task.target);
  return result;
}

}  // namespace qor
