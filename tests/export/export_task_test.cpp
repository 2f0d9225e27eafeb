// Exports as whoever starts them sees them: progress, stopping, and what they leave alone.
#include "export/export_task.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "export/export_formats.h"
#include "platform/print/pdf_file_printer.h"
#include "settings/printers.h"
#include "support/pdf_reader.h"
#include "support/report_reader.h"

namespace qor::test {
namespace {

// Exports three pages, of which the user lets `wanted` pass. Gives what was told of each.
std::string exportSome(TestReport& report, const std::string& name, int wanted,
                       ExportResult result) {
  std::string told;
  ExportTask task = {report.doc(), report.path(name), runOptions()};
  task.options.ImageFormats.set(kImagePng);
  task.options.SaveHtmlPictures = task.options.SaveDocPictures = true;
  task.options.PrintToPdfPrinter = name.find("printed") != std::string::npos;
  task.progress = [&](std::int32_t page, std::int32_t pages) {
    told += std::to_string(page) + "/" + std::to_string(pages) + " ";
    return page < wanted;
  };
  EXPECT_EQ(runExport(*formatOf(name), task), result) << name;
  for (const std::string& file : task.files) told += std::filesystem::path(file).filename();
  return told;
}

// A target stays as it was, pictures that were finished stay, and nothing else is left.
TEST(ExportTask, stopsBehindAPage) {
  for (const std::string name : {"r.txt", "r.html", "r.rtf", "r.pdf", "printed.pdf"}) {
    TestReport report("<barcode br_type=39 value=A left=9 right=50 bottom=20/>\r\n\fB\r\n\fC\r\n");
    exportSome(report, name, 1, ExportResult::stopped);
    EXPECT_EQ(report.names(), std::vector<std::string>{"report.txt"});
    EXPECT_EQ(exportSome(report, name, 9, ExportResult::done), "1/3 2/3 3/3 " + name);
    const std::string whole = readFile(report.path(name));
    const auto names = report.names();
    EXPECT_EQ(names.size() > 2, name != "r.txt") << "pictures of barcodes";
    EXPECT_EQ(exportSome(report, name, 2, ExportResult::stopped), "1/3 2/3 ");
    EXPECT_EQ(readFile(report.path(name)), whole);
    EXPECT_EQ(report.names(), names);
  }
  TestReport report("A\r\n\fB\r\n\fC\r\n");
  EXPECT_EQ(exportSome(report, "none/printed.pdf", 9, ExportResult::stopped), "");
  EXPECT_EQ(exportSome(report, "r.png", 2, ExportResult::stopped), "1/3 2/3 r(1).pngr(2).png");
  EXPECT_EQ(report.names(), (std::vector<std::string>{"r(1).png", "r(2).png", "report.txt"}));
}

// One through the printer that makes files: half of the size in the file, and none of it behind it.
TEST(ExportTask, leavesTheChosenPrinterAsItWas) {
  TestReport report("<text left=100 top=100 tc=A/>\r\n");
  InitPrinters();
  AppOptions.PrinterName = "chosen";
  report.doc().PrintScale = 75;
  gPrintMetrics.LogPixelsX = 123;
  ExportTask task = {report.doc(), report.path("r.pdf"), runOptions()};
  task.options.PrintToPdfPrinter = task.options.ScaleToPaper = true;
  task.options.PaperScale = 50;
  EXPECT_EQ(runExport(*formatOf(task.target), task), ExportResult::done);
  EXPECT_NEAR(readPdf(task.target).word("A").x, 50, 0.2);
  EXPECT_EQ(AppOptions.PrinterName, "chosen");
  EXPECT_EQ(report.doc().PrintScale, 75);
  EXPECT_FALSE(report.doc().PrintScaleFlag);
  EXPECT_EQ(gPrintMetrics.LogPixelsX, 123);
}

}  // namespace
}  // namespace qor::test
