// The program from outside: arguments in, files, exit code and messages out.
#include <unistd.h>

#include "support/test.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;

// Every file below the directory with its bytes.
Files contents(const TemporaryDirectory& place) {
  Files files;
  for (const std::string& name : place.names())
    files[name] = name.ends_with('/') ? "" : place.read(name);
  return files;
}

const std::string kExportedA = "A\r\n\f\r\n\x1A\r\n";

TEST(Help, speaksThreeLanguages) {
  const std::string keys =
      "\t-g\t-f\t-p\t-i\t-caption\t-codepage\t-mail\t-dd(-DD)\t-dynamic\t-test";
  // The locale; the version line, and the last keys.
  const std::array<std::string, 3> rows[] = {
      {"de_DE.UTF-8", "QorUtlView - report viewer. Version 1.3b7", "\t-e\t/?,"},
      {"ru_RU.UTF-8", "QorUtlView - программа просмотра отчётов. Версия 1.3b7", "\t/?,"},
      {"tr_TR.UTF-8", "QorUtlView -  Yazdırma uygulaması. Versiyon 1.3b7", "\t-e\t/?,"}};
  for (const auto& [locale, version, lastKeys] : rows) {
    for (const auto& [key, exitCode] : {std::pair{"-h", 255}, {"--help", 0}}) {
      const Outcome help = runViewer({key}, {"", {{"LC_ALL", locale}}, 0});
      EXPECT_EQ(help.exitCode, exitCode);
      const auto lines = linesOf(help.output);
      EXPECT_EQ(lines.at(0), version);
      std::string found;
      for (std::size_t i = 3; i < lines.size(); ++i) found += wordsOf("\t" + lines[i]).at(0) + "\t";
      EXPECT_EQ("\t" + found, keys + lastKeys + "\t");
    }
  }
  EXPECT_EQ(runViewer({"--version"}).output, "QorUtlView 1.3b7\n");
}

TEST(Run, endsSilentlyWithoutReport) {
  const TemporaryDirectory place;
  for (const char* options : {"", "x -h", "-g", "-export o.txt", "-test -dd"})
    expectTold(runViewer(wordsOf(options), in(place)), "");
  EXPECT_TRUE(contents(place).empty());
}

TEST(Run, tellsOfMissingFiles) {
  const TemporaryDirectory place;
  place.write("r.txt", "A");
  fs::create_directory(place.path("d"));
  for (const std::string report : {"none.txt", "d", "./none.txt"}) {
    expectTold(runViewer({"-f", report, "-export", "o.txt"}, in(place)),
               report + "  - file not exists.", 255);
  }
  expectTold(runViewer(wordsOf("-f r.txt -i none.vset#A -export o.txt"), in(place)), "none.vset#A");
  EXPECT_EQ(place.read("o.txt"), kExportedA);
  EXPECT_EQ(place.names(), wordsOf("d/ o.txt r.txt"));
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
      {"", "r.txt", "r.txt", "ИТОГ ŞÇ.TXT", "итог şç.txt"}};
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
    expectTold(runViewer({"-f", option(reportOption), "-export", option(targetOption)},
                         in(place, directory)),
               "");
    EXPECT_EQ(contents(place), expected);
  }
}

TEST(Export, writesNothingForOtherExtensions) {
  const TemporaryDirectory place;
  for (const char* name : {"r.txt", "r_1.jpeg", "o.htm", "o.xls"}) place.write(name, "A");
  const Files before = contents(place);
  for (const char* target : {"o.htm", "o.jpg", "o.text", "o", "pdf", ".", "o.txt.bak", "d.txt/o"}) {
    expectTold(runViewer({"-f", "r.txt", "-export", target, "-dd"}, in(place)), "");
    EXPECT_EQ(contents(place), before) << target;
  }
}

TEST(Export, numbersThePicturesOfSeveralPages) {
  const TemporaryDirectory place;
  place.write("r.txt", "A\fB\fC");
  expectTold(runViewer(wordsOf("-f r.txt -export o.2.GIF -dd -dynamic"), in(place)), "");
  EXPECT_EQ(place.names(), wordsOf("o.2(1).gif o.2(2).gif o.2(3).gif"));
}

TEST(DeleteAfterwards, takesTheReportAndItsSideFiles) {
  // The report, the target, which may be one of the side files, and what goes.
  const std::array<const char*, 3> rows[] = {
      {"in/r.txt", "o.txt", "in/r.txt in/r_1.jpeg in/r_mail.tmp in/r_.x in/r_a_b.c"},
      {"in/r.txt", "in/r_1.txt", "in/r.txt in/r_1.jpeg in/r_mail.tmp in/r_.x in/r_a_b.c"},
      {"in/r.s.txt", "in/r.s.txt", ""},
      {"in/r.s.txt", "o.html", "in/r.s.txt in/r.s_1.jpeg"},
      {"r.txt", "o.txt", "r.txt r_1.jpeg"},
      {"r.txt", "r_1.jpeg", "r.txt"}};
  for (const auto& [report, target, gone] : rows) {
    SCOPED_TRACE(target);
    const TemporaryDirectory place;
    for (const char* name : {"r.txt", "r_1.jpeg", "listed.txt", "in/r.txt", "in/r_1.jpeg",
                             "in/r_.x", "in/r_a_b.c", "in/r.bak", "in/r2_1.jpeg", "in/xr_1.jpeg",
                             "in/r.s.txt", "in/r.s_1.jpeg", "in/r_d.d/r_1.jpeg"})
      place.write(name, "A");
    place.write("in/r_mail.tmp", "listed.txt\r\n" + place.path("listed.txt") + "\r\n");
    Files expected = contents(place);
    for (const auto& name : wordsOf(gone)) EXPECT_EQ(expected.erase(name), 1U) << name;
    expectTold(runViewer({"-f", report, "-export", target, "-dd"}, in(place)), "");
    Files left = contents(place);
    EXPECT_GT(left[target].size(), 1U);
    left.erase(target);
    expected.erase(target);
    EXPECT_EQ(left, expected);
  }
}

TEST(DeleteAfterwards, leavesWhatNobodyHasSeen) {
  const TemporaryDirectory place;
  place.write("empty.txt", "");
  place.write("r.txt", "A");
  place.write("s.vset", setWith("S", "Page Orientation=many"));
  const Files before = contents(place);
  for (const char* options : {"-f empty.txt -export o.png", "-f r.txt -i s.vset#S -export o.txt",
                              "-f r.txt -codepage 99 -export o.png"}) {
    EXPECT_NE(runViewer(wordsOf(options + std::string(" -dd")), in(place)).errors, "");
    EXPECT_EQ(contents(place), before) << options;
  }
}

// An unprivileged user stands in for root, who may write everywhere.
Outcome runUnprivileged(const std::vector<std::string>& arguments, const Surroundings& around) {
  if (::geteuid() != 0) return runViewer(arguments, around);
  const TemporaryDirectory home;
  fs::copy_file(QOR_PROGRAM, home.path("viewer"));
  fs::permissions(home.path(), fs::perms(0755));
  const std::vector<std::string> command = {"setpriv", "--reuid=65534", "--regid=65534",
                                            "--clear-groups", home.path("viewer")};
  return run(joined(command, arguments), withoutLeakCheck(around));
}

TEST(FailedExport, leavesEverythingAsItWas) {
  const TemporaryDirectory place;
  place.write("r.txt", times(10000, "line of the report\r\n"));
  place.write("r_1.jpeg", "side");
  for (const char* name : {"old.txt", "old.html", "old.bmp", "old.png", "locked.txt", "locked.png",
                           "taken.txt/inside", "taken.bmp/inside"})
    place.write(name, "old");
  for (const char* name : {"locked.txt", "locked.png"})
    fs::permissions(place.path(name), fs::perms(0444));
  fs::permissions(place.path(), fs::perms(0777));
  const Files before = contents(place);
  const auto expectFailure = [&](const std::string& target, const std::string& codePage,
                                 unsigned long limit, const std::string& told) {
    SCOPED_TRACE(target);
    expectTold(runUnprivileged({"-f", "r.txt", "-codepage", codePage, "-export", target, "-dd"},
                               {place.path(), {}, limit}),
               told);
    EXPECT_EQ(contents(place), before);
  };
  for (const char* target : {"none/o.txt", "none/o.html", "none/o.png", "r.txt/o.txt", "taken.txt",
                             "taken.bmp", "locked.txt", "locked.png"})
    expectFailure(target, "1252", 0, target);
  for (const char* tooLarge : {"old.txt", "old.html", "old.bmp", "new.txt"})
    expectFailure(tooLarge, "1252", 8192, tooLarge);
  expectFailure("old.png", "708", 0, "code page 708");
}

}  // namespace
}  // namespace qor::test
