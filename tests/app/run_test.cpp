// The program from outside: arguments in, files, exit code and messages out.
#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "support/program.h"
#include "support/temporary_directory.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;

// Every file below the directory with its bytes, directories with a "/" behind the name.
Files contents(const TemporaryDirectory& place) {
  Files files;
  for (const auto& entry : fs::recursive_directory_iterator(place.path())) {
    const std::string name = fs::relative(entry.path(), place.path()).string();
    files[entry.is_directory() ? name + "/" : name] =
        entry.is_directory() ? "" : readFile(entry.path().string());
  }
  return files;
}

std::vector<std::string> names(const TemporaryDirectory& place) {
  std::vector<std::string> result;
  for (const auto& [name, bytes] : contents(place)) result.push_back(name);
  return result;
}

Surroundings in(const TemporaryDirectory& place, const char* directory = "") {
  return {place.path(directory), {}, 0};
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
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
  struct Row {
    const char* locale;
    std::vector<std::string> expected;  // the second line is free
  };
  const Row rows[] = {
      {"de_DE.UTF-8",
       {"QorUtlView - report viewer. Version 1.3b7", "", "    <commands>",
        "\t-g (-G)  - don't show graphisc interface",
        "\t-f (-F)   <file name> - name of file for printing",
        "\t-p (-P)   <name>      - name of printer device",
        "\t-i (-I)   <file name> - name of .ini file with printing settings",
        "\t-caption  <name>      - header of window",
        "\t-codepage <number>    - codepage of document",
        "\t-mail     <1 or 2>    - choosing of EMail program for send report",
        "\t-dd(-DD) - delete data file after print report",
        "\t-dynamic - dynamic mode of reading data file",
        "\t-test    - test mode for preview, print button disabled",
        "\t-e (-E)  <file extension> - File Export (rtf,doc,pdf,bmp,jpeg,gif,ico)",
        "\t/?, /h, -h - show help window"}},
      {"ru_RU.UTF-8",
       {"QorUtlView - программа просмотра отчётов. Версия 1.3b7", "", "    <команды>",
        "\t-g (-G)  - отключить графический интерфейс",
        "\t-f (-F)   <имя файла> - имя файла, который выводится на печать",
        "\t-p (-P)   <имя>       - имя принтера",
        "\t-i (-I)   <имя файла> - имя файла установок печати",
        "\t-caption  <имя>       - заголовок окна",
        "\t-codepage <номер>     - кодовая страница документа",
        "\t-mail     <1 или 2>   - выбор почтовой программы для отправки отчёта",
        "\t-dd(-DD) - удалить файл данных после печати отчёта",
        "\t-dynamic - динамический режим чтения файла данных",
        "\t-test    - тестовый режим, кнопка \"Печать\" неактивна",
        "\t/?, /h, -h - показать окно помощи"}},
      {"tr_TR.UTF-8",
       {"QorUtlView -  Yazdırma uygulaması. Versiyon 1.3b7", "", "    <komutlar>",
        "\t-g (-G)  - grafik arayüzünü gösterme",
        "\t-f (-F)   <dosya adı>  - basılacak dosyanın adı",
        "\t-p (-P)   <ad>         - yazıcının adı",
        "\t-i (-I)   <dosya adı>  - yazdırma ayarlarını içeren .ini dosyasının adı",
        "\t-caption  <ad>         - pencere başlığı",
        "\t-codepage <number>     - dosya kod sayfası",
        "\t-mail     <1 or 2>     - choosing of EMail program for send report",
        "\t-dd(-DD) - rapor basma işleminden sonra veri dosyasını sil",
        "\t-dynamic - veri dosyasını dinamik olarak oku",
        "\t-test    - önizleme için test, yazdırma işlemi yapılamaz",
        "\t-e (-E)  <dosya uzantısı> - Dosya Export(rtf,doc,pdf,bmp,jpeg,gif,ico)",
        "\t/?, /h, -h - yardım"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.locale);
    const Outcome help = runViewer({"-h"}, {"", {{"LC_ALL", row.locale}}, 0});
    EXPECT_EQ(help.exitCode, 255);
    EXPECT_EQ(help.errors, "");
    auto lines = linesOf(help.output);
    ASSERT_GT(lines.size(), 1U);
    lines[1].clear();
    EXPECT_EQ(lines, row.expected);
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
  const Outcome unnamed = runViewer({"-g", "-test"});
  EXPECT_EQ(unnamed.exitCode, 255);
  expectOneLine(unnamed, "File for print not selected.");

  const Outcome settings =
      runViewer({"-f", "r.txt", "-i", "none.vset#A", "-export", "o.txt"}, in(place));
  EXPECT_EQ(settings.exitCode, 0);
  expectOneLine(settings, "none.vset#A");
  EXPECT_EQ(place.read("o.txt"), kExportedA);
  EXPECT_EQ(names(place), (std::vector<std::string>{"d/", "o.txt", "r.txt"}));
}

TEST(Export, findsFilesByAnyName) {
  struct Row {
    const char* directory;
    const char* report;
    const char* reportOption;
    const char* targetOption;
    const char* target;
  };
  const Row rows[] = {
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
  for (const Row& row : rows) {
    SCOPED_TRACE(row.targetOption);
    const TemporaryDirectory place;
    place.write(row.report, "A");
    for (const char* directory : {"in", "out", "Out"}) fs::create_directory(place.path(directory));
    const auto option = [&](std::string name) {
      return name.starts_with('@') ? place.path(name.substr(1)) : name;
    };
    Files expected = contents(place);
    expected[row.target] = kExportedA;
    expectSilence(runViewer({"-f", option(row.reportOption), "-export", option(row.targetOption)},
                            in(place, row.directory)));
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
  struct Row {
    const char* report;
    const char* target;
    std::vector<std::string> names;
    std::string start;
  };
  const Row rows[] = {
      {"A", "O.BMP", {"o.bmp"}, "BM"},
      {"A\fB", "o.jpeg", {"o(1).jpeg", "o(2).jpeg"}, "\xFF\xD8"},
      {"A\fB\fC", "o.gif", {"o(1).gif", "o(2).gif", "o(3).gif"}, "GIF8"},
      {"A", "o.ico", {"o.ico"}, std::string("\0\0\1\0", 4)},
      {"A\fB", "o.2.png", {"o.2(1).png", "o.2(2).png"}, "\x89PNG"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.target);
    const TemporaryDirectory place;
    place.write("r.txt", row.report);
    expectSilence(runViewer({"-f", "r.txt", "-export", row.target, "-dd"}, in(place)));
    EXPECT_EQ(names(place), row.names);
    for (const auto& name : row.names) EXPECT_TRUE(place.read(name).starts_with(row.start)) << name;
  }
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
      {"in/r.txt", "pdf", {"in/r.txt", "in/r_1.jpeg", "in/r_mail.tmp", "in/r_.x", "in/r_a_b.c"}},
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
  struct Row {
    const char* name;
    const char* target;
    unsigned long limit = 0;
    const char* codePage = "1252";
  };
  const Row rows[] = {
      {"no directory, text", "none/o.txt"},
      {"no directory, html", "none/o.html"},
      {"no directory, picture", "none/o.png"},
      {"file for a directory", "r.txt/o.txt"},
      {"directory, text", "taken.txt"},
      {"directory, picture", "taken.bmp"},
      {"no right to write", "locked.txt"},
      {"no right to write, picture", "locked.png"},
      {"too large, text", "old.txt", 8192},
      {"too large, html", "old.html", 8192},
      {"too large, picture", "old.bmp", 8192},
      {"too large, new file", "new.txt", 8192},
      {"no file for the code page", "old.png", 0, "1250"},
  };
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
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const Outcome outcome =
        runUnprivileged({"-f", "r.txt", "-codepage", row.codePage, "-export", row.target, "-dd"},
                        {place.path(), {}, row.limit});
    EXPECT_EQ(outcome.exitCode, 0);
    expectOneLine(outcome, row.codePage == std::string("1250") ? "cp1250.ini" : row.target);
    EXPECT_EQ(contents(place), before);
  }
}

}  // namespace
}  // namespace qor::test
