// Reports as PDF documents: through the markup, or as a print job into a file.
#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iterator>
#include <string>

#include "barcode/barcode_picture.h"
#include "base/app_options.h"
#include "base/path.h"
#include "base/units.h"
#include "document/code_page.h"
#include "document/loaded_page.h"
#include "document/vdoc.h"
#include "export/exporters.h"
#include "export/pdf/pdf_markup.h"
#include "export/pdf/pdf_writer.h"
#include "platform/print/pdf_file_printer.h"
#include "platform/system/directory.h"
#include "platform/system/input_file.h"
#include "platform/system/messages.h"
#include "platform/system/output_file.h"

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
const char* languageOf(int codePage) {
  switch (codePage) {
    case 866:
    case 1251: return "ru";
    case 857:
    case 1254: return "tr";
    default: return "";
  }
}

PdfInformation informationOf(const VDoc& doc) {
  const std::string report(baseNameOf(AppOptions.FileName));
  return {AppOptions.WindowCaption.empty() ? report : AppOptions.WindowCaption,
          languageOf(doc.Settings.Page.BaseCodePage),
          AppOptions.ProgramName + " " + AppOptions.ProgramVersion, creationTime()};
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

int exportByPrinter(VDoc& doc, const ExportOptions& options) {
  AppOptions.PrinterName = kPdfFilePrinter;
  doc.PrintScale = options.ScaleToPaper ? options.PaperScale : 100;
  doc.PrintScaleFlag = options.ScaleToPaper;
  doc.PrintToFile(options.TargetName);
  return 0;
}

struct WidthRow {
  double fontHeight;  // points
  double divisor;
};
constexpr WidthRow kWidthDivisors[] = {{10, 1.335}, {9, 1.295}, {8, 1.455}, {12, 1.39}, {14, 1.31}};
constexpr double kOtherDivisor = 1.35;

// Points. Pages may change the font, and the last one decides.
std::int32_t pageWidthOf(VDoc& doc, const ExportOptions& options) {
  if (options.PageMode != kWindowPageMode)
    return doc.Settings.Page.landscape() ? kLandscapeWidth : kUprightWidth;
  const double height = doc.FontAt(doc.PageCount + 1).Height;
  const auto* row =
      std::find_if(std::begin(kWidthDivisors), std::end(kWidthDivisors),
                   [height](const WidthRow& each) { return each.fontHeight == height; });
  const double divisor = row == std::end(kWidthDivisors) ? kOtherDivisor : row->divisor;
  return truncated(options.PreviewPageWidth / divisor);
}

void writePages(VDoc& doc, const ExportOptions& options, PdfDocument& document) {
  const int codePage = doc.Settings.Page.BaseCodePage;
  const std::string stem = sideFileStem(options.TargetName);
  defineCodePage(document, codePage);
  PdfWriter writer(document, codePage, stem);
  PdfLines lines(1);
  const PdfLines pageEnd = {{std::string(1, kPageMark)}};
  for (std::int32_t number = 1; number <= doc.PageCount; ++number) {
    const LoadedPage page(doc, number, options.PageMode);
    writeBarcodePicturesOf(*page, stem);
    for (const VDocStr& line : page->lines()) {
      lines.front().clear();
      LineToMarkup(line, lines, 0);
      writer.WritePdf(lines);
    }
    if (number != doc.PageCount) writer.WritePdf(pageEnd);
  }
  writer.endPages(pageWidthOf(doc, options));
}

}  // namespace

int ExportPdf(VDoc& doc, const ExportOptions& options) {
  if (options.PrintToPdfPrinter) return exportByPrinter(doc, options);
  const std::string resources = programDirectory() + "pdflib.upr";
  if (!fileExists(resources)) {
    showWarning(missingText(resources, doc.Settings.Page.BaseCodePage));
    return kExportStop;
  }
  OutputFile file(options.TargetName);
  PdfDocument document(file, informationOf(doc));
  document.setResourceFile(resources);
  writePages(doc, options, document);
  document.finish();
  file.commit();
  return 0;
}

}  // namespace qor
