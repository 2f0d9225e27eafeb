// The filter of print queues: by itself, and in a scheduler's hands.
#include <chrono>
#include <csignal>
#include <thread>

#include "support/cups_scheduler.h"
#include "support/pdf_reader.h"
#include "support/program.h"
#include "support/rows.h"
#include "support/test.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kPdfDriver = "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd";
constexpr const char* kPostScriptDriver = "drv:///sample.drv/generic.ppd";

// A directory with those of the filter in it.
struct Server {
  Server() {
    for (const char* name : {"tmp", "server"}) fs::create_directory(place.path(name));
  }

  Surroundings around() const {
    Surroundings around = withoutLeakCheck(in(place));
    around.environment["TMPDIR"] = place.path("tmp");
    around.environment["QOR_SERVER_DIRECTORY"] = place.path("server");
    around.environment["SOURCE_DATE_EPOCH"] = "1";
    around.environment["F"] = QOR_FILTER_PROGRAM;
    return around;
  }
  Outcome shell(const std::string& command) const { return run({"bash", "-c", command}, around()); }
  bool isClean() const { return fs::is_empty(place.path("tmp")); }

  const TemporaryDirectory place;
};

// Pages with a line each, and a word that only code page 866 spells so.
std::string pages(int count) {
  std::string report;
  for (int page = 1; page <= count; ++page)
    report += "\x91\xE7\xF1\xE2 page" + std::to_string(page) + (page < count ? "\r\n\f" : "\r\n");
  return report;
}

std::string textOf(const std::string& pdf) {
  return without("\n", without("\f", run({"pdftotext", pdf, "-"}).output));
}

TEST(ReportFilter, writesTheDrawnPages) {
  const Server server;
  server.place.write("r",
                     pages(2) + "<barcode br_type=code39 left=20 top=40 width=60 height=20>A1");
  server.place.write("server/sets.vset", setWith("Wide", "Page Orientation=2"));
  const std::string export866 = std::string(QOR_EXPORT_PROGRAM) + " -t drawn -c 866 ";
  EXPECT_EQ(server.shell(export866 + "-o r.pdf r").told(), "0:");
  EXPECT_EQ(server.shell("$F 1 me r 7 'copies=7 qor-codepage=866 x' r >file.pdf").told(), "0:");
  EXPECT_EQ(server.shell("$F 1 me r 1 qor-codepage=866 <r >stream.pdf").told(), "0:");
  EXPECT_EQ(server.place.read("file.pdf"), server.place.read("r.pdf"));
  EXPECT_EQ(server.place.read("stream.pdf"), server.place.read("r.pdf"));
  EXPECT_EQ(server
                .shell("QOR_ANSI_CODEPAGE=866 $F 1 me '\xD0\x98 \x22' 1 qor-settings=Wide <r "
                       ">wide.pdf")
                .told(),
            "0:");
  const PdfDocument wide = readPdf(server.place.path("wide.pdf"));
  EXPECT_EQ(wide.title, "\xD0\x98 \x22");
  EXPECT_NEAR(wide.width, 297, 0.2);
  EXPECT_EQ(textOf(server.place.path("wide.pdf")), textOf(server.place.path("r.pdf")));
  EXPECT_TRUE(server.isClean());
}

TEST(ReportFilter, saysInALineWhatItRefuses) {
  const Server server;
  server.place.write("r", "A");
  server.place.write("none", "");
  server.place.write("server/sets.vset", setWith("Wide", ""));
  for (const auto& [arguments, reason] :
       rowsOf("=usage: |1 me t 1=usage: |1 me t 1 x r r=usage: |1 me t 1 x lost=lost: No such file|"
              "1 me t 1 x .=Is a directory|1 me Empty 1 x none=Empty: the report has no pages|"
              "1 me t 1 qor-codepage:0 r=\"0\" is not such|1 me t 1 qor-codepage:x r=\"x\" is not|"
              "1 me t 1 qor-codepage:65001 r=code page 65001 is unknown|"
              "1 me t 1 qor-codepage:$'\"1\\nATTR:\"' r=not such a number|"
              "1 me t 1 qor-settings:wide r=there is no set \"wide\" in|"
              "1 me t 1 qor-settings:../r r=there is no set|1 me t 1 x r >/dev/full=No space left",
              "=")) {
    std::string line = arguments;
    std::ranges::replace(line, ':', '=');
    const Outcome outcome = server.shell("$F " + line);
    EXPECT_EQ(outcome.exitCode, 1) << line;
    EXPECT_EQ(outcome.output, "") << line;
    EXPECT_EQ(countOf("\n", outcome.errors), 1U) << outcome.errors;
    EXPECT_TRUE(outcome.errors.starts_with("ERROR: ")) << outcome.errors;
    EXPECT_NE(outcome.errors.find(reason), std::string::npos) << line << ": " << outcome.errors;
    EXPECT_TRUE(server.isClean()) << line;
  }
}

// Whoever prints is to see none of the server's own.
TEST(ReportFilter, readsPicturesOfTheAdministratorOnly) {
  const Server server;
  const fs::path picture = QOR_SOURCE_DIR "/samples/pictures/logo.png";
  for (const char* name : {"server/in.png", "out.png", "tmp/other.png", "more/named.png"}) {
    fs::create_directories(fs::path(server.place.path(name)).parent_path());
    fs::copy_file(picture, server.place.path(name));
  }
  fs::create_symlink(server.place.path("out.png"), server.place.path("server/link.png"));
  const std::string place = server.place.path();
  for (const auto& [name, isThere] :
       rowsOf("in.png 1|" + place + "/server/in.png 1|" + place + "/out.png 0|../out.png 0|" +
              place + "/server/../out.png 0|link.png 0|" + place + "/tmp/other.png 0|" + place +
              "/more/named.png 1")) {
    server.place.write("r", "<img left=20 top=20 right=50 bottom=50 image=\"" + name + "\"/>\r\n");
    EXPECT_EQ(server.shell("QOR_PICTURE_PATH=" + place + "/more $F 1 me t 1 '' r >r.pdf").told(),
              "0:");
    EXPECT_EQ(!imagesOf(server.place.path("r.pdf")).empty(), isThere == "1") << name;
  }
}

TEST(ReportFilter, leavesNothingHoweverItEnds) {
  const Server server;
  server.place.write("long", pages(200000));
  // What is ignored from the start stays so: SIGINT, in the background of a shell.
  for (const auto& [end, told] :
       rowsOf("kill -KILL $(pgrep -P $!)=1:ERROR: long: its process was killed, maybe for want of "
              "memory\n|kill $!=143:|kill -INT $!; sleep 0.3; kill $!=143:",
              "=")) {
    const Outcome outcome = server.shell(
        "$F 1 me long 1 '' long >r.pdf & until compgen -G 'tmp/.qor*/.qor*' >/dev/null >/dev/null; "
        "do :; "
        "done; " +
        end + "; wait $!");
    EXPECT_EQ(outcome.told(), told) << end;
    EXPECT_EQ(server.place.read("r.pdf"), "") << end;
    EXPECT_TRUE(server.isClean()) << end;
  }
}

// Other filters have files there, too.
bool isAtWork(const CupsScheduler& scheduler) {
  const fs::directory_iterator names(scheduler.path("spool/tmp"));
  return std::any_of(begin(names), end(names), [](const fs::directory_entry& entry) {
    return entry.path().filename().string().starts_with(".qor-");
  });
}

TEST(ReportFilter, printsOnTheQueuesOfAServer) {
  const CupsScheduler scheduler(Filters::withReports);
  scheduler.addQueue("pdf", kPdfDriver, "qor-codepage-default=866");
  scheduler.addQueue("ps", kPostScriptDriver);
  const TemporaryDirectory place;
  place.write("r.txt", pages(3));
  place.write("r.qor", pages(1));
  place.write("tags.txt", "<b>shown<b/>\r\n");
  place.write("long", pages(200000));
  const auto print = [&](const std::string& arguments) {
    scheduler.command(joined({"lp"}, wordsOf(arguments + " -o media=A4")));
  };
  const std::string type = " -o document-format=text/x-qor-report ";
  const std::string word = "\xD0\xA1\xD1\x87\xD1\x91\xD1\x82 ";
  // What is printed, and the text that arrives.
  const std::pair<std::string, std::string> rows[] = {
      {"-d pdf" + type + place.path("r.txt"), word + "page1" + word + "page2" + word + "page3"},
      {"-d pdf -n 2 -o page-ranges=2-3" + type + place.path("r.txt"),
       word + "page2" + word + "page2" + word + "page3" + word + "page3"},
      {"-d pdf " + place.path("r.qor"), word + "page1"},
      {"-d pdf -o qor-codepage=1251" + type + place.path("r.qor"),
       "\xE2\x80\x98\xD0\xB7\xD1\x81\xD0\xB2 page1"}};
  print("-d pdf -o qor-codepage=4242" + type + place.path("r.txt"));
  for (const auto& [arguments, text] : rows) {
    print(arguments);
    scheduler.finishJobs(1);
    EXPECT_EQ(textOf(scheduler.output("pdf")), text) << arguments;
  }
  print("-d pdf " + place.path("tags.txt"));
  scheduler.finishJobs(1);
  const PdfDocument plain = readPdf(scheduler.output("pdf"));
  EXPECT_EQ(plain.pages, 1);
  EXPECT_EQ(plain.word("shown").page, 0);
  const std::string reason = "qor-codepage: code page 4242 is unknown\n";
  EXPECT_NE(readFile(scheduler.path("error_log")).find(reason), std::string::npos);
  print("-d ps" + type + place.path("long"));
  while (!isAtWork(scheduler)) std::this_thread::yield();
  scheduler.command({"cancel", "-a", "ps"});
  while (isAtWork(scheduler)) std::this_thread::yield();
  print("-d ps -o qor-codepage=866" + type + place.path("r.txt"));
  scheduler.finishJobs(1);
  const std::string arrived = readFile(scheduler.output("ps"));
  EXPECT_EQ(countOf("%%Page: ", arrived), 3U);
}

}  // namespace
}  // namespace qor::test
