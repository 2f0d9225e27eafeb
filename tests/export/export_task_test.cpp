// Exports as whoever starts them sees them: progress, stopping, and what they leave alone.
#include "export/export_task.h"

#include "export/export_formats.h"
#include "platform/print/pdf_file_printer.h"
#include "settings/printers.h"
#include "support/test.h"

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

// Reports of three pages. Before the last one is read, somebody works on the file.
class ChangedReport : public testing::Test {
 protected:
  using Change = void (*)(const std::string& path);

  // The message of an export or a print job meanwhile; empty where it was done.
  template <class Run>
  static std::string failureOf(Change change, Run run) {
    const PageProgress progress = [change](std::int32_t page, std::int32_t) {
      if (page == 2) change(AppOptions.FileName);
      return true;
    };
    try {
      run(progress);
      return "";
    } catch (const ReportError& error) {
      return error.what();
    }
  }

  static std::string exported(TestReport& report, const std::string& name, Change change) {
    return failureOf(change, [&](const PageProgress& progress) {
      ExportTask task = {report.doc(), report.path(name), runOptions()};
      task.options.ImageFormats.set(kImagePng);
      task.progress = progress;
      runExport(*formatOf(name), task);
    });
  }
};

std::string wordsIn(const std::string& pdf) {
  std::string words;
  for (const PdfWord& word : readPdf(pdf).words) words += word.text + " ";
  return words;
}

void cut(const std::string& path) {
  std::filesystem::resize_file(path, 8);
}
void cutHardly(const std::string& path) {
  std::filesystem::resize_file(path, std::filesystem::file_size(path) - 1);
}
void replace(const std::string& path) {
  std::filesystem::copy_file(path, path + "2");
  std::filesystem::rename(path + "2", path);
}
void touch(const std::string& path) {
  std::filesystem::last_write_time(path, std::filesystem::file_time_type());
}
void grow(const std::string& path) {
  std::ofstream(path, std::ios::app) << "\f more";
}
void writeAnew(const std::string& path) {
  std::fstream(path, std::ios::in | std::ios::out) << "Z\r\n\fZ\r\n\fZ\r\n\fZ\r\n";
}
void leave(const std::string&) {
}

TEST_F(ChangedReport, failsAndLeavesTheTarget) {
  constexpr const char* kPages = "A\r\n\fB\r\n\fC\r\n";
  for (const std::string name :
       {"o.txt", "o.html", "o.rtf", "o.pdf", "o.xlsx", "o.csv", "o(3).png", "report(print).pdf"}) {
    std::string whole;
    for (const Change change : {leave, grow, cut, cutHardly, replace, touch, writeAnew}) {
      TestReport report(kPages);
      std::ofstream(report.path(name)) << "old";
      const std::string failure =
          name == "report(print).pdf"
              ? failureOf(change,
                          [&](const PageProgress& progress) {
                            RunOptions run = runOptions();
                            run.printer = kPdfFilePrinter;
                            EXPECT_EQ(report.doc().PrintAll(run, progress).notice, "");
                          })
              : exported(report, name == "o(3).png" ? "o.png" : name, change);
      std::string made = readFile(report.path(name));
      if (name.ends_with("pdf") && made != "old") made = wordsIn(report.path(name));
      if (change == leave) whole = made;
      const bool fails = change != leave && change != grow;
      EXPECT_EQ(made, fails ? "old" : whole) << name;
      EXPECT_EQ(failure.find(report.path("report.txt")) != std::string::npos, fails) << failure;
    }
    EXPECT_NE(whole, "old");
  }
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
