// The program from outside: arguments in, files, exit code and messages out.
#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "support/program.h"
#include "support/rows.h"
#include "support/temporary_directory.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;

// Every file below the directory with its bytes.
Files contents(const TemporaryDirectory& place) {
  Files files;
  for (const std::string& name : place.names()) {
    files[name] = name.ends_with('/') ? "" : place.read(name);
  }
  return files;
}

void expectSilence(const Outcome& outcome, int exitCode = 0) {
  EXPECT_EQ(outcome.exitCode, exitCode);
  EXPECT_EQ(outcome.signal, 0);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(outcome.errors, "");
}

// One line on standard error that holds `part`, and nothing else said.
void expectOneLine(const Outcome& outcome, const std::string& part) {
  EXPECT_EQ(outcome.signal, 0);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1) << outcome.errors;
  EXPECT_TRUE(outcome.errors.ends_with('\n'));
  EXPECT_NE(outcome.errors.find(part), std::string::npos) << outcome.errors;
}

const std::string kExportedA = "A\r\n\f\r\n\x1A\r\n";

TEST(Help, speaksThreeLanguages) {
  const std::string keys =
      "\t-g\t-f\t-p\t-i\t-caption\t-codepage\t-mail\t-dd(-DD)\t-dynamic\t-test";
  // The locale; the version line, the heading, one option, and the last keys.
  const std::array<std::string, 5> rows[] = {
      {"de_DE.UTF-8", "QorUtlView - report viewer. Version 1.3b7", "    <commands>",
       "\t-caption  <name>      - header of window", "\t-e\t/?,"},
      {"ru_RU.UTF-8", "QorUtlView - программа просмотра отчётов. Версия 1.3b7", "    <команды>",
       "\t-caption  <имя>       - заголовок окна", "\t/?,"},
      {"tr_TR.UTF-8", "QorUtlView -  Yazdırma uygulaması. Versiyon 1.3b7", "    <komutlar>",
       "\t-caption  <ad>         - pencere başlığı", "\t-e\t/?,"},
  };
  for (const auto& [locale, version, heading, caption, lastKeys] : rows) {
    const Outcome help = runViewer({"-h"}, {"", {{"LC_ALL", locale}}, 0});
    EXPECT_EQ(help.exitCode, 255);
    const auto lines = linesOf(help.output);
    ASSERT_GT(lines.size(), 7U);
    EXPECT_EQ(lines[0] + lines[2] + lines[7], version + heading + caption);
    std::string found;
    for (std::size_t i = 3; i < lines.size(); ++i) found += lines[i].substr(0, lines[i].find(' '));
    EXPECT_EQ(found, keys + lastKeys);
  }
}

TEST(Help, answersTheUsualSwitches) {
  const Outcome help = runViewer({"--help"});
  EXPECT_EQ(help.exitCode, 0);
  EXPECT_EQ(help.output, runViewer({"/?"}).output);
  const Outcome version = runViewer({"--version"});
  EXPECT_EQ(version.exitCode, 0);
  EXPECT_EQ(linesOf(version.output).size(), 1U);
  EXPECT_NE(version.output.find("1.3b7"), std::string::npos);
}

TEST(Run, endsSilentlyWithoutReport) {
  const std::vector<std::string> rows[] = {
      {}, {""}, {"x", "-h"}, {"-g"}, {"-export", "o.txt"}, {"-test", "-dd"}};
  const TemporaryDirectory place;
  for (const auto& arguments : rows) {
    expectSilence(runViewer(arguments, in(place)));
  }
  EXPECT_TRUE(contents(place).empty());
}

TEST(Run, tellsOfMissingFiles) {
  const TemporaryDirectory place;
  place.write("r.txt", "A");
  fs::create_directory(place.path("d"));
  for (const std::string report : {"none.txt", "d", "./none.txt"}) {
    const Outcome outcome = runViewer({"-f", report, "-export", "o.txt"}, in(place));
    EXPECT_EQ(outcome.exitCode, 255);
    expectOneLine(outcome, report);
    expectOneLine(outcome, "- file not exists.");
    EXPECT_FALSE(place.has("o.txt"));
  }
  const Outcome settings =
      runViewer({"-f", "r.txt", "-i", "none.vset#A", "-export", "o.txt"}, in(place));
  EXPECT_EQ(settings.exitCode, 0);
  expectOneLine(settings, "none.vset#A");
  EXPECT_EQ(place.read("o.txt"), kExportedA);
  EXPECT_EQ(place.names(), (std::vector<std::string>{"d/", "o.txt", "r.txt"}));
}

TEST(Export, findsFilesByAnyName) {
  // The current directory, the report, how it is named, how the target is named, the target; "@"
  // is the directory of them all.
  const std::array<const char*, 5> rows[] = {
      {"", "r.txt", "r.txt", "o.txt", "o.txt"},
      {"", "my report.txt", "my report.txt", "my export.txt", "my export.txt"},
      {"", "Отчёт за май.txt", "Отчёт за май.txt", "итог ё.txt", "итог ё.txt"},
      {"", "Şube Iğdır.txt", "Şube Iğdır.txt", "çıktı.txt", "çıktı.txt"},
      {"", "r.txt", "./r.txt", "./o.txt", "o.txt"},
      {"", "in/r.txt", "in/r.txt", "out/o.txt", "out/o.txt"},
      {"in", "r.txt", "../r.txt", "../out/o.txt", "out/o.txt"},
      {"in", "in/r.txt", "r.txt", "@Out/o.txt", "Out/o.txt"},
      {"out", "in dir/r.txt", "@in dir/r.txt", "@in dir/o.txt", "in dir/o.txt"},
      {"", "a.b/r", "a.b/r", "a.b/o.txt", "a.b/o.txt"},
      {"", "r.txt", "r.txt", "O.TXT", "o.txt"},
      {"", "r.txt", "r.txt", "Out/O.Txt", "Out/o.txt"},
      {"", "r.txt", "r.txt", "ИТОГ ŞÇ.TXT", "итог şç.txt"},
  };
  for (const auto& [directory, report, reportOption, targetOption, target] : rows) {
    SCOPED_TRACE(targetOption);
    const TemporaryDirectory place;
    place.write(report, "A");
    for (const char* name : {"in", "out", "Out"}) fs::create_directory(place.path(name));
    const auto option = [&](std::string name) {
      return name.starts_with('@') ? place.path(name.substr(1)) : name;
    };
    Files expected = contents(place);
    expected[target] = kExportedA;
    expectSilence(runViewer({"-f", option(reportOption), "-export", option(targetOption)},
                            in(place, directory)));
    EXPECT_EQ(contents(place), expected);
  }
}

TEST(Export, writesNothingForOtherExtensions) {
  const TemporaryDirectory place;
  place.write("r.txt", "A");
  place.write("o.htm", "old");
  const Files before = contents(place);
  for (const char* target : {"o.htm", "o.jpg", "o.text", "o", "pdf", ".", "o.txt.bak", "d.txt/o"}) {
    SCOPED_TRACE(target);
    expectSilence(runViewer({"-f", "r.txt", "-export", target}, in(place)));
    EXPECT_EQ(contents(place), before);
  }
}

TEST(Export, tellsOfFormatsThatAreNotThereYet) {
  const TemporaryDirectory place;
  place.write("r.txt", "A");
  place.write("r_1.jpeg", "side");
  for (const std::string target : {"o.rtf", "o.doc", "o.xls", "o.xlsx", "o.csv"}) {
    SCOPED_TRACE(target);
    place.write(target, "old");
    const Files before = contents(place);
    const Outcome outcome = runViewer({"-f", "r.txt", "-export", target, "-dd"}, in(place));
    EXPECT_EQ(outcome.exitCode, 0);
    expectOneLine(outcome, target);
    EXPECT_EQ(contents(place), before);
  }
}

TEST(Export, numbersThePicturesOfSeveralPages) {
  const TemporaryDirectory place;
  place.write("r.txt", "A\fB\fC");
  expectSilence(runViewer({"-f", "r.txt", "-export", "o.2.GIF", "-dd"}, in(place)));
  EXPECT_EQ(place.names(), (std::vector<std::string>{"o.2(1).gif", "o.2(2).gif", "o.2(3).gif"}));
}

TEST(DeleteAfterwards, takesTheReportAndItsSideFiles) {
  struct Row {
    const char* report;
    const char* target;
    std::vector<std::string> gone;
  };
  const Row rows[] = {
      {"in/r.txt", "o.txt", {"in/r.txt", "in/r_1.jpeg", "in/r_mail.tmp", "in/r_.x", "in/r_a_b.c"}},
      {"in/r.txt", "o.html", {"in/r.txt", "in/r_1.jpeg", "in/r_mail.tmp", "in/r_.x", "in/r_a_b.c"}},
      {"in/r.txt", "pdf", {}},  // nothing is exported
      {"in/r.txt",
       "in/r_o.txt",
       {"in/r.txt", "in/r_1.jpeg", "in/r_mail.tmp", "in/r_.x", "in/r_a_b.c"}},
      {"in/r.s.txt", "o.txt", {"in/r.s.txt", "in/r.s_1.jpeg"}},
      {"r.txt", "o.txt", {"r.txt", "r_1.jpeg"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.report);
    const TemporaryDirectory place;
    for (const char* name : {"r.txt", "r_1.jpeg", "listed.txt", "in/r.txt", "in/r_1.jpeg",
                             "in/r_.x", "in/r_a_b.c", "in/r.bak", "in/r2_1.jpeg", "in/xr_1.jpeg",
                             "in/r.s.txt", "in/r.s_1.jpeg", "in/r_d.d/r_1.jpeg"}) {
      place.write(name, "A");
    }
    place.write("in/r_mail.tmp", "listed.txt\r\n" + place.path("listed.txt") + "\r\n");
    Files expected = contents(place);
    for (const auto& name : row.gone) EXPECT_EQ(expected.erase(name), 1U) << name;
    expectSilence(runViewer({"-f", row.report, "-export", row.target, "-dd"}, in(place)));
    Files left = contents(place);
    left.erase(row.target);
    EXPECT_EQ(left, expected);
  }
}

// An unprivileged user stands in for root, who may write everywhere.
Outcome runUnprivileged(const std::vector<std::string>& arguments, const Surroundings& around) {
  if (::geteuid() != 0) return runViewer(arguments, around);
  const TemporaryDirectory home;
  fs::copy_file(QOR_PROGRAM, home.path("viewer"));
  fs::permissions(home.path(), fs::perms(0755));
  std::vector<std::string> command = {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups",
                                      home.path("viewer")};
  command.insert(command.end(), arguments.begin(), arguments.end());
  // That user may not be allowed to read what the sanitizers are told here.
  Surroundings plain = around;
  plain.environment["LSAN_OPTIONS"] = "";
  plain.environment["ASAN_OPTIONS"] = "detect_leaks=0";
  return run(command, plain);
}

TEST(FailedExport, leavesEverythingAsItWas) {
  const TemporaryDirectory place;
  std::string report;
  for (int i = 0; i < 10000; ++i) report += "line of the report\r\n";
  place.write("r.txt", report);
  place.write("r_1.jpeg", "side");
  for (const char* name : {"old.txt", "old.html", "old.bmp", "old.png", "locked.txt", "locked.png",
                           "taken.txt/inside", "taken.bmp/inside"}) {
    place.write(name, "old");
  }
  for (const char* name : {"locked.txt", "locked.png"}) {
    fs::permissions(place.path(name), fs::perms(0444));
  }
  fs::permissions(place.path(), fs::perms(0777));
  const Files before = contents(place);
  const auto expectFailure = [&](const std::string& target, const std::string& codePage,
                                 unsigned long limit, const std::string& told) {
    SCOPED_TRACE(target);
    const Outcome outcome =
        runUnprivileged({"-f", "r.txt", "-codepage", codePage, "-export", target, "-dd"},
                        {place.path(), {}, limit});
    EXPECT_EQ(outcome.exitCode, 0);
    expectOneLine(outcome, told);
    EXPECT_EQ(contents(place), before);
  };
  for (const char* target : {"none/o.txt", "none/o.html", "none/o.png", "r.txt/o.txt", "taken.txt",
                             "taken.bmp", "locked.txt", "locked.png"}) {
    expectFailure(target, "1252", 0, target);
  }
  for (const char* tooLarge : {"old.txt", "old.html", "old.bmp", "new.txt"}) {
    expectFailure(tooLarge, "1252", 8192, tooLarge);
  }
  expectFailure("old.png", "708", 0, "code page 708");
}

}  // namespace
}  // namespace qor::test
