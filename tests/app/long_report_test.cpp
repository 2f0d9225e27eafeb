// Reports that take all processors of the machine.
#include <filesystem>

#include "support/program.h"
#include "support/rows.h"
#include "support/test.h"
#include "support/variable.h"

namespace qor::test {
namespace {

// Pages with styles that go on from one to another, and letters that come late.
std::string longReport() {
  std::string report;
  for (int page = 1; page <= 260; ++page) {
    report += page % 3 == 0 ? "<b>" : page % 7 == 0 ? "<b/><i>" : "";
    report += "Page " + std::to_string(page) + std::string(static_cast<std::size_t>(page), '.');
    if (page % 50 == 0) report += static_cast<char>('\xC0' + page / 50);
    for (int line = 0; line < 5; ++line)
      report += "\r\n" + std::to_string(page * line) + " (\\) some words of a line";
    report += page < 260 ? "\r\n\f" : "";
  }
  return report;
}

void write(const TemporaryDirectory& place, const std::string& directory,
           const std::vector<std::string>& start, const std::string& arguments) {
  std::filesystem::create_directory(place.path(directory));
  const Outcome outcome = run(joined(start, wordsOf(arguments)), withoutLeakCheck(in(place)));
  EXPECT_EQ(outcome.told(), "0:") << arguments;
}

TEST(LongReports, comeOutTheSameOnOneProcessorAndOnAll) {
  const TemporaryDirectory place;
  const Variable time("SOURCE_DATE_EPOCH", "1");
  place.write("r.txt", longReport());
  const std::vector<std::string> one = {"taskset", "-c", "0"};
  const std::vector<std::string> exporter = {QOR_EXPORT_PROGRAM, "-c", "1251"};
  for (const char* target : {"a.pdf", "d.pdf -drawn", "p.png"}) {
    const std::string viewing = "-f r.txt -codepage 1251 -export ";
    write(place, "one", joined(one, viewer({})), viewing + "one/" + target);
    write(place, "all", viewer({}), viewing + "all/" + target);
  }
  write(place, "one", joined(one, exporter), "-t gif -p 2-99,odd -o one/{page}.gif r.txt");
  write(place, "all", exporter, "-t gif -p 2-99,odd -o all/{page}.gif r.txt");
  write(place, "full", exporter, "-t gif -p -100 -o full/{page}.gif r.txt");
  for (const char* page : {"59", "99"})
    EXPECT_EQ(place.read(std::string("all/") + page + ".gif"),
              place.read(std::string("full/") + page + ".gif"));
  const Outcome differences = run({"diff", "-r", "one", "all"}, in(place));
  EXPECT_EQ(differences.told(), "0:");
  EXPECT_TRUE(place.has("all/p(260).png"));
  const Outcome told =
      run(joined(exporter, wordsOf("--json -o p.png r.txt")), withoutLeakCheck(in(place)));
  std::uintmax_t bytes = 0;
  for (int page = 1; page <= 260; ++page)
    bytes += std::filesystem::file_size(place.path("p(" + std::to_string(page) + ").png"));
  const std::string sums = "\"files\":260,\"pages\":260,\"bytes\":" + std::to_string(bytes) + ",";
  EXPECT_NE(told.output.find(sums), std::string::npos) << told.output << sums;
  EXPECT_FALSE(place.has("all/260.gif"));
  EXPECT_TRUE(place.has("all/259.gif"));
}

TEST(LongReports, tellWhatGoesWrongOnce) {
  const TemporaryDirectory place;
  place.write("r.txt", longReport());
  place.write("file", "");
  const Outcome lost = runViewer({"-f", "r.txt", "-dd", "-export", "file/p.png"}, in(place));
  expectTold(lost, "file/p(", 0);
  EXPECT_TRUE(place.has("r.txt"));
  const Outcome failed =
      run({QOR_EXPORT_PROGRAM, "-o", "/dev/null/p.png", "r.txt"}, withoutLeakCheck(in(place)));
  expectTold(failed, "r.txt: ", 1);
  EXPECT_EQ(runViewer({"-f", "r.txt", "-dd", "-export", "p.png"}, in(place)).told(), "0:");
  EXPECT_FALSE(place.has("r.txt"));
  EXPECT_TRUE(place.has("p(1).png") && place.has("p(260).png"));
}

}  // namespace
}  // namespace qor::test
