// qorexport from outside: what it writes, what it tells, and what it leaves when things go wrong.
#include <chrono>
#include <csignal>
#include <fstream>
#include <thread>

#include "support/program.h"
#include "support/rows.h"
#include "support/test.h"
#include "support/variable.h"

namespace qor::test {
namespace {

Outcome runExports(const TemporaryDirectory& place, const std::string& arguments) {
  return run(joined({QOR_EXPORT_PROGRAM}, wordsOf(arguments)), withoutLeakCheck(in(place)));
}

// The same in a shell, where "$Q" is the program.
Outcome runShell(const TemporaryDirectory& place, const std::string& command) {
  Surroundings around = withoutLeakCheck(in(place));
  around.environment["Q"] = QOR_EXPORT_PROGRAM;
  return run({"bash", "-c", command}, around);
}

// Pages with a line each, such as "Page 2".
std::string pages(int count) {
  std::string report;
  for (int page = 1; page <= count; ++page)
    report += "Page " + std::to_string(page) + "\r\n" + (page < count ? "\f\r\n" : "");
  return report;
}

// Names in a directory, between blanks.
std::string namesIn(const TemporaryDirectory& place, const std::string& directory) {
  std::string names;
  for (const std::string& name : place.names())
    if (name.starts_with(directory) && name != directory)
      names += name.substr(directory.size()) + " ";
  return names;
}

// A report that keeps an exporter busy for a while: a picture a page.
std::string longReport() {
  return pages(4000);
}

// Reports follow each other in a process, and none shows anything of the one before it.
TEST(QorExport, writesWhatTheViewerWrites) {
  const TemporaryDirectory place;
  const Variable time("SOURCE_DATE_EPOCH", "1");
  const std::pair<std::string, std::string> reports[] = {
      {"open", "<b><i><u><font name=Arial size=20 color=255>Left open\r\n\f\r\n<text left=9 top=9"},
      {"r", "Total \xC8\xF2\xEE\xE3\xEE <b>12,5<b/>  x\r\n<text left=20 top=40 tc=y/>"},
      {"wide", "\033E" + std::string(300, '\xC8') + "<image file=none.png left=1 top=1/>"},
      {"s", "12,5 <i>x<i/>"}};
  for (const auto& [name, report] : reports) place.write(name, report);
  const auto rows = rowsOf("txt|html|pdf|drawn pdf|png|jpeg|gif|bmp|ico|rtf|doc|xls|xlsx|csv");
  for (const auto& [format, extension] : rows) {
    std::string names;
    for (const auto& [report, text] : reports) names += " " + report;
    const Outcome outcome =
        runExports(place, "-j1 -c 1251 --to=" + format + " -o new/{stem}.{ext}" + names);
    EXPECT_EQ(outcome.exitCode, 0) << format << outcome.errors;
    for (const auto& [report, text] : reports) {
      std::vector<std::string> command = {"-f", report, "-codepage", "1251", "-export"};
      command.push_back(report + "." + (extension.empty() ? format : extension));
      if (format == "drawn") command.push_back("-drawn");
      runViewer(command, in(place));
    }
    const auto files = namesIn(place, "new/");
    for (const std::string& file : wordsOf(files))
      EXPECT_EQ(place.read("new/" + file), place.read(file)) << file;
    EXPECT_GE(wordsOf(files).size(), std::size(reports)) << format;
    std::filesystem::remove_all(place.path("new"));
  }
}

TEST(QorExport, makesTargetsOfATemplate) {
  struct Row {
    const char* arguments;
    const char* names;  // in out/
  };
  const Row rows[] = {
      {"-t txt -o out/{stem}.{ext} in/a.txt in/b", "a.txt b.txt "},
      {"-o out/{name}.txt in/c\\d.e", "c\\d.e.txt "},
      {"-o out/{stem}.txt -f returns", "a.txt b.txt "},
      {"-o out/{name}.html in/a.txt in/b", "a.txt.html b.html "},
      {"-t csv -o out/{dir}/{name}.csv in/a.txt ./in/b", "in/ in/a.txt.csv in/b.csv "},
      {"-j1 -o out/{dir}/{stem}.txt in/a.txt other/c in/b",
       "in/ in/a.txt in/b.txt other/ other/c.txt "},
      {"-o out/{stem}.txt -f list", "a.txt b.txt "},
      {"-o out/{stem}.txt -f zeros in/a.txt", "a.txt b.txt "},
      {"-o out/{stem}.txt in/a.txt in/../in/a.txt", "a.txt "},
      {"-t png -o out/{stem}.png in/a.txt", "a(1).png a(2).png a(3).png "},
      {"-t png -p 2- -o out/p{page}-{stem}.png in/a.txt", "p2-a.png p3-a.png "},
      {"-t gif -o out/{stem}.gif in/b", "b.gif "}};
  for (const Row& row : rows) {
    const TemporaryDirectory place;
    place.write("in/a.txt", pages(3));
    place.write("in/b", "b");
    place.write("other/c", "c");
    place.write("in/c\\d.e", "d");
    place.write("returns", "in/a.txt\r\nin/b\r\n");
    place.write("list", "in/a.txt\n\nin/b\n");
    place.write("zeros", std::string("in/a.txt\0in/b\0", 14));
    EXPECT_EQ(runExports(place, row.arguments).told(), "0:") << row.arguments;
    const std::string names = namesIn(place, "out/");
    EXPECT_EQ(
        row.names == std::string("./in/ in/ in/a.txt.csv in/b.csv ") ? "./in/ " + names : names,
        row.names)
        << row.arguments;
  }
}

TEST(QorExport, takesThePagesThatAreNamed) {
  const TemporaryDirectory place;
  place.write("r", pages(9));
  for (const auto& [given, wanted] :
       rowsOf("1-3,7- 1237 8 9|odd 13579|even,1 12468|-2 12|9-20 9|4 4|2,2,2-3 23", " ")) {
    std::string expected;
    for (const char digit : without(" ", wanted)) {
      if (digit != ' ') expected += std::string("Page ") + digit + "|";
    }
    EXPECT_EQ(runExports(place, "-p " + given + " -o r.txt r").told(), "0:") << given;
    std::string found;
    for (const std::string& line : linesOf(place.read("r.txt")))
      if (line.starts_with("Page")) found += line.substr(0, 6) + "|";
    EXPECT_EQ(found, expected) << given;
  }
  // Formats that end pages by what stands between them.
  EXPECT_EQ(runExports(place, "-p 2,4 -o r.pdf r").told(), "0:");
  EXPECT_EQ(run({"pdftotext", "-layout", "r.pdf", "-"}, in(place)).output, "Page 2\n\fPage 4\n\f");
  EXPECT_EQ(runExports(place, "-p 2,4 -o r.xlsx r").told(), "0:");
  EXPECT_EQ(run({"/usr/bin/python3", "-c",
                 "import openpyxl\n"
                 "for s in openpyxl.load_workbook('r.xlsx'): print(s['A1'].value)"},
                in(place))
                .output,
            "Page 2\nPage 4\n");
  EXPECT_EQ(runExports(place, "-p 12 -o new.txt r").told(), "1:r: it has none of these pages\n");
  EXPECT_FALSE(place.has("new.txt"));
}

TEST(QorExport, refusesBeforeAnythingIsWritten) {
  const TemporaryDirectory place;
  for (const char* name : {"a/r.txt", "b/r.txt", "c.txt"}) place.write(name, "text");
  const auto before = place.names();
  for (
      const auto& [arguments, reason] : rowsOf(
          "a/r.txt b/r.txt=r.pdf would be the target of a/r.txt and of b/r.txt|"
          "-o {stem}.txt c.txt=c.txt is a report, and a target, too|"
          "-o {page}.pdf c.txt=nothing is known of {page}|-o {x}.pdf c.txt=nothing is known of {x}|"
          "-o {stem c.txt=no } behind it|-t xls -o {stem}.pdf c.txt=doesn't end in .xls|"
          "-o - a/r.txt c.txt=room for one report|-o - --json c.txt=both need the standard output|"
          "- -f -=only once|-t word c.txt=\"word\" is not a format|-p 0 c.txt=\"0\" names no pages|"
          "-p 3-2 c.txt=ends before it begins|-p , c.txt=names no pages|-j 0 c.txt=jobs|"
          "-c x c.txt=codepage|--timeout 0 c.txt=timeout|--memory 5T c.txt=memory|=no report|"
          "--jobs=lacks its value|--nothing c.txt=--nothing|-x c.txt=-x|"
          "-f missing=missing: No such file|-f a=a: Is a directory|--if-newer -o - c.txt=can't be "
          "newer|"
          "-s missing c.txt=no file of settings|-s c.txt#x c.txt=no set \"x\" in|"
          "--memory 17179869184G c.txt=memory|-t png -o {page}/a.png c.txt=of no directory|"
          "-t png -o {stem}.png c.txt c(12).txt=c(12).png would be the target of c.txt and|"
          "-t gif -o {stem}{page}-.gif r r12=r12{page}-.gif would be the target of r and",
          "=")) {
    const Outcome outcome = runExports(place, arguments);
    EXPECT_EQ(outcome.exitCode, 2) << arguments;
    EXPECT_EQ(countOf("\n", outcome.errors), 1U) << outcome.errors;
    EXPECT_NE(outcome.errors.find(reason), std::string::npos)
        << arguments << ": " << outcome.errors;
    EXPECT_EQ(place.names(), before) << arguments;
  }
}

// Failures are told one by one, the rest is done, and lines of JSON add up.
TEST(QorExport, goesOnBehindFailures) {
  const TemporaryDirectory place;
  std::string list;
  for (int i = 0; i < 200; ++i) {
    // One with a byte that is no letter.
    const std::string name = "in/" + (i == 7 ? "\xC8" : std::to_string(i));
    if (i % 10 != 3) place.write(name, pages(3));
    list += name + "\n";
  }
  std::filesystem::create_directory(place.path("in/3"));
  place.write("list", list);
  const Outcome outcome = runExports(place, "-o out/{stem}.txt -f list --json -j 3");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(countOf("\n", outcome.errors), 20U);
  EXPECT_NE(outcome.errors.find("in/13: "), std::string::npos) << outcome.errors;
  EXPECT_EQ(countOf(" ", namesIn(place, "out/")), 180U);
  const Outcome sums =
      run({"/usr/bin/python3", "-c",
           "import json,sys,os\n"
           "rows=[json.loads(l) for l in sys.argv[1].splitlines()]\n"
           "done=[r for r in rows if r['result']=='done']\n"
           "bad=[r for r in rows if r['result']=='failed']\n"
           "print(len(rows),len(done),sum(r['pages'] for r in done),\n"
           " all(r['reason'] for r in bad),\n"
           " all(os.path.getsize(os.fsencode(r['target']))==r['bytes'] for r in done))",
           outcome.output},
          in(place));
  EXPECT_EQ(sums.told(), "0:200 180 540 True True\n");
  EXPECT_EQ(runExports(place, "--fail-fast -j 1 -o fast/{stem}.txt in/1 in/3 in/4").exitCode, 1);
  EXPECT_EQ(namesIn(place, "fast/"), "1.txt ");
}

TEST(QorExport, leavesOutWhatIsNewer) {
  const TemporaryDirectory place;
  place.write("r", pages(2));
  const auto results = [&place](const std::string& arguments) {
    const std::string told = runExports(place, arguments + " --if-newer --json").output;
    const auto start = told.find("\"result\":\"") + 10;
    return told.substr(start, told.find('"', start) - start);
  };
  const std::string done = "done";
  const std::string skipped = "skipped";
  for (const char* arguments : {"-o r.pdf r", "-t png -o r.png r", "-o p{page}.gif -t gif r"}) {
    std::filesystem::last_write_time(
        place.path("r"), std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    EXPECT_EQ(results(arguments), done) << arguments;
    EXPECT_EQ(results(arguments), skipped) << arguments;
    std::filesystem::last_write_time(
        place.path("r"), std::filesystem::file_time_type::clock::now() + std::chrono::hours(1));
    EXPECT_EQ(results(arguments), done) << arguments;
  }
  // One that comes in the place of another, with an older time.
  place.write("old", pages(2));
  std::filesystem::last_write_time(place.path("old"), std::filesystem::file_time_type::min());
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  std::filesystem::rename(place.path("old"), place.path("r"));
  EXPECT_EQ(results("-o r.pdf r"), done);
  EXPECT_EQ(results("-o r.pdf r"), skipped);
  std::filesystem::remove(place.path("p2.gif"));
  std::filesystem::last_write_time(place.path("r"), std::filesystem::file_time_type::min());
  EXPECT_EQ(results("-o p{page}.gif -t gif r"), done);
  EXPECT_TRUE(place.has("p2.gif"));
}

// What was added is not to be missed by the next run.
TEST(QorExport, refusesReportsThatGrowMeanwhile) {
  const TemporaryDirectory place;
  place.write("r", longReport());
  Process exporter({QOR_EXPORT_PROGRAM, "-o", "p.png", "r"}, withoutLeakCheck(in(place)));
  while (!place.has("p(9).png")) std::this_thread::yield();
  std::ofstream(place.path("r"), std::ios::app) << "\fThe last page\r\n";
  const Outcome outcome = exporter.wait();
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(countOf("has changed", outcome.errors), 1U) << outcome.errors;
}

// Fewer processes do it where there is no room for more, and none does more than it should.
TEST(QorExport, makesDoWithWhatTheSystemHas) {
  const TemporaryDirectory place;
  for (int i = 0; i < 70; ++i) place.write("in/" + std::to_string(i), pages(2));
  // The sanitizers need a pipe to look at an exception.
  const char* limited = QOR_SANITIZED ? "$Q -j 50" : "ulimit -n 24; $Q -j 50";
  for (const char* command : {limited, "$Q -j 1"}) {
    const Outcome outcome = runShell(place, std::string("rm -rf out; ") + command +
                                                " -t txt -o 'out/{stem}.txt' in/*; ls out | wc -l");
    EXPECT_EQ(outcome.told(), "0:70\n") << command;
  }
}

// What belongs to a report is neither another one's nor hidden from it.
TEST(QorExport, keepsReportsApart) {
  const TemporaryDirectory place;
  const Variable time("SOURCE_DATE_EPOCH", "1");
  for (int i = 0; i < 12; ++i) {
    const std::string name = "in/ledger." + std::to_string(i);
    std::string report;
    for (int page = 0; page < 10; ++page)
      report += "<barcode br_type=EAN_8 value=\"9638507\" left=28 top=20 right=" +
                std::to_string(60 + 9 * i) + " bottom=" + std::to_string(42 + i) + "/>\r\n\f";
    place.write(name, report);
  }
  runShell(place, "$Q -j1 -o 'one/{name}.pdf' in/*; $Q -j4 -o 'four/{name}.pdf' in/*");
  EXPECT_EQ(run({"diff", "-rq", "one", "four"}, in(place)).told(), "0:");
  // Each is told what its directory refuses.
  runShell(place, "mkdir {s,t}_barcode_9638507_28_20.jp{,e}g; cp in/ledger.1 s; cp in/ledger.1 t");
  EXPECT_EQ(countOf("\n", runExports(place, "-j1 -o {stem}.html s t").errors), 2U);
  // Behind a wall that lets a process read the files of its own links only.
  place.write("far/a", "a");
  place.write("further/b", "b");
  const std::string links = "mkdir l; ln -s ../far/a ../further/b l; ";
  EXPECT_EQ(runShell(place, links + "QOR_PICTURE_PATH=l $Q -j1 -o 'l/{stem}.txt' l/a l/b").told(),
            "0:");
}

TEST(QorExport, readsAndWritesStreams) {
  const TemporaryDirectory place;
  place.write("r", pages(2));
  place.write("list", "r\n");
  const std::string direct = runShell(place, "$Q -o r.txt r && cat r.txt").output;
  EXPECT_NE(direct.find("Page 2"), std::string::npos);
  EXPECT_EQ(runShell(place, "$Q -t txt -o - - < r").told(), "0:" + direct);
  EXPECT_EQ(runShell(place, "$Q -o out/{stem}.txt - < r; cat out/stdin.txt").told(), "0:" + direct);
  place.write("code",
              "<barcode br_type=EAN_8 value=\"9638507\" left=28 top=20 right=84 bottom=42/>");
  place.write("tmp/_notes.txt", "somebody else's");
  runShell(place, "TMPDIR=tmp $Q -t pdf -o - - < code >c.pdf");
  EXPECT_EQ(namesIn(place, "tmp/"), "_notes.txt ");
  const std::string pictures = "TMPDIR=tmp $Q -t png -o - r ";
  EXPECT_EQ(runShell(place, pictures + ">p.png").told(),
            "1:r: the standard output has room for the picture of one page, which --pages names\n");
  EXPECT_EQ(runShell(place, pictures + "-p2 >p.png; $Q -o q.png r; cmp p.png 'q(2).png'").told(),
            "0:");
  EXPECT_EQ(namesIn(place, "tmp/"), "_notes.txt ");
  EXPECT_EQ(runShell(place, "cat list | $Q -f - -o l.txt; cat l.txt").told(), "0:" + direct);
  const Outcome closed = runShell(place, "exec 3>&1; ($Q -o - -t pdf r; echo $? >&3) | true");
  EXPECT_TRUE(closed.output == "0\n" || closed.output == "1\n");
  const Outcome full = runShell(place, "$Q -o - -t txt r > /dev/full");
  EXPECT_EQ(full.told(), "1:standard output: No space left on device\n");
  for (const char* stream : {"-t txt -o - r >&-", "-o z.txt - <&-", "--version > /dev/full"})
    EXPECT_EQ(runShell(place, std::string("$Q ") + stream).exitCode, 1) << stream;
  // Those at hand are finished, and told.
  const Outcome json = runShell(place, "$Q -j3 --json -o {stem}.txt r gone code > /dev/full");
  EXPECT_EQ(json.exitCode, 1);
  EXPECT_NE(json.errors.find("gone: "), std::string::npos) << json.errors;
  EXPECT_TRUE(place.has("r.txt") && place.has("code.txt"));
}

// On a terminal only, and out of the way of what is told.
TEST(QorExport, showsHowFarItIs) {
  const TemporaryDirectory place;
  place.write("r", pages(2));
  const std::string exports = "$Q -j1 --progress -o {stem}.txt r missing";
  const std::string shown = runShell(place, "script -qec '" + exports + "' /dev/null").output;
  const std::string clear = "\r\033[K";
  EXPECT_EQ(shown.find(clear + "[........................] 0 of 2, 0 failed, "), 0U) << shown;
  EXPECT_NE(shown.find("left" + clear + "missing: "), std::string::npos) << shown;
  EXPECT_NE(shown.find(clear + "[########################] 2 of 2, 1 failed, "), std::string::npos);
  EXPECT_TRUE(shown.ends_with(" 0:00 left" + clear)) << shown;
  EXPECT_EQ(countOf("\n", runShell(place, exports).errors), 1U);
}

TEST(QorExport, endsReportsThatTakeTooMuch) {
  const TemporaryDirectory place;
  place.write("long", longReport());
  place.write("r", "text");
  const Outcome late = runExports(place, "--timeout 0.2 -t png -o out/{stem}.png long r");
  EXPECT_EQ(late.told(), "1:long: its process took too long and was ended\n");
  EXPECT_TRUE(place.has("out/r.png"));
#if !QOR_SANITIZED
  place.write("wide", std::string(std::size_t{60} << 20U, 'x'));
  const Outcome large = runExports(place, "--memory 20M -t html -o out/{stem}.html wide r");
  EXPECT_EQ(large.told(), "1:wide: not enough memory\n");
  EXPECT_TRUE(place.has("out/r.html"));
#endif
}

// Processes that the program has started.
std::vector<pid_t> childrenOf(pid_t process) {
  const std::string id = std::to_string(process);
  std::ifstream children("/proc/" + id + "/task/" + id + "/children");
  std::vector<pid_t> found;
  for (pid_t child = 0; children >> child;) found.push_back(child);
  return found;
}

TEST(QorExport, survivesItsWorkersAndTakesThemAlong) {
  const TemporaryDirectory place;
  place.write("long", longReport());
  place.write("r", "text");
  const std::vector<std::string> command = {QOR_EXPORT_PROGRAM, "-j1",  "-t", "png", "-o",
                                            "out/{stem}.png",   "long", "r"};
  const auto started = [](Process& program) {
    std::vector<pid_t> children;
    while (children.empty() && program.isRunning()) children = childrenOf(program.id());
    return children;
  };
  Process killed(command, withoutLeakCheck(in(place)));
  for (const pid_t child : started(killed)) ::kill(child, SIGKILL);
  EXPECT_EQ(killed.wait().told(), "1:long: its process was killed, maybe for want of memory\n");
  EXPECT_TRUE(place.has("out/r.png"));
  for (const int signal : {SIGTERM, SIGINT}) {
    Process ended(command, withoutLeakCheck(in(place)));
    const std::vector<pid_t> children = started(ended);
    while (!place.has("out/long(2).png")) std::this_thread::yield();
    ended.signal(signal);
    EXPECT_EQ(ended.wait().exitCode, 128 + signal);
    for (const pid_t child : children)
      while (::kill(child, 0) == 0) std::this_thread::yield();
    for (const std::string& name : place.names()) EXPECT_EQ(name.find("/."), name.npos) << name;
    std::filesystem::remove_all(place.path("out"));
  }
}

}  // namespace
}  // namespace qor::test
