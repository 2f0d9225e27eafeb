// Reports as PDF documents.
#include "export/pdf/pdf_export.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iterator>
#include <string>

#include "barcode/barcode_picture.h"
#include "base/path.h"
#include "base/units.h"
#include "document/code_page.h"
#include "document/side_picture.h"
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

// Documents of the same report are the same where the time is told, as builders of packages do it.
std::time_t creationTime() {
  const char* fixed = std::getenv("SOURCE_DATE_EPOCH");
  if (fixed == nullptr) return std::time(nullptr);
  std::int64_t seconds = 0;
  const auto [end, error] = std::from_chars(fixed, fixed + std::strlen(fixed), seconds);
  return error == std::errc() ? seconds : std::time(nullptr);
}

// The language of texts in a code page, where it tells one.
const char* languageTagOf(int codePage) {
  switch (codePage) {
    case 866:
    case 1251: return "ru";
    case 857:
    case 1254: return "tr";
    default: return "";
  }
}

PdfInformation informationOf(const ExportTask& task) {
  const RunOptions& run = task.startedWith;
  return {run.caption.empty() ? std::string(baseNameOf(run.report)) : run.caption,
          languageTagOf(task.doc.Settings.Page.BaseCodePage), run.program + " " + run.version,
          creationTime()};
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

// False where the job came to nothing, for a reason that is told.
bool exportByPrinter(const ExportTask& task) {
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
  if (outcome.end != PrintOutcome::End::printed) return false;
  pictures.keep();
  return true;
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
  const double height = doc.FontAt(doc.PageCount + 1).Height;
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
  const PdfLines pageEnd = {{std::string(1, kPageMark)}};
  forEachPage(task.doc, task.mode, task.progress, [&](const VDocPage& page) {
    writeBarcodePicturesOf(page, stem);
    forEachLine(page, [&](const VDocStr& line) {
      lines.front().clear();
      LineToMarkup(line, lines, 0);
      writer.WritePdf(lines);
      losses.look(line);
    });
    if (page.Number != task.doc.PageCount) writer.WritePdf(pageEnd);
  });
  writer.endPages(pageWidthOf(task));
  return losses.found();
}

// As a document that is told; false where the engine's resource file is missing.
bool exportTold(ExportTask& task) {
  const std::string resources = programDirectory() + "pdflib.upr";
  if (!fileExists(resources)) {
    showWarning(missingText(resources, task.doc.Settings.Page.BaseCodePage));
    return false;
  }
  NewSidePictures pictures;
  OutputFile file(task.target);
  PdfDocument document(file, informationOf(task));
  document.setResourceFile(resources);
  const PdfLosses losses = writePages(task, document);
  document.finish();
  file.commit();
  pictures.keep();
  task.notice = pdfNotice(losses);
  return true;
}

}  // namespace

ExportResult ExportPdf(ExportTask& task) {
  const bool exported = task.options.PrintToPdfPrinter ? exportByPrinter(task) : exportTold(task);
  if (!exported) return ExportResult::stopped;
  task.files.push_back(task.target);
  return ExportResult::done;
}

}  // namespace qor
