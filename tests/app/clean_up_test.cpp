// What a run deletes behind itself, and what it never does.
#include <filesystem>

#include <gtest/gtest.h>

#include "app/side_files.h"
#include "support/program.h"
#include "support/report_reader.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> names(const TemporaryDirectory& place) {
  std::vector<std::string> found;
  for (const auto& entry : fs::directory_iterator(place.path()))
    found.push_back(entry.path().filename().string());
  std::sort(found.begin(), found.end());
  return found;
}

struct Row {
  const char* what;
  std::vector<std::string> arguments;
  const char* report;
  bool stays;
};

const std::string kBadSet =
    "<Set SetName=\"S\">\r\n<Print>\r\n<NumOfCopies = \"many\"/>\r\n<Print/>\r\n<Set/>\r\n";

// r_1.png is a side file, and in some runs the target.
const std::vector<Row> kRows = {
    {"exported", {"-export", "o.txt"}, "A", false},
    {"exported over a side file", {"-export", "r_1.png"}, "A", false},
    {"exported over itself", {"-export", "r.txt"}, "A", true},
    {"printed", {"-g"}, "A", false},
    {"no such printer", {"-g", "-p", "none"}, "A", false},
    {"unknown extension", {"-export", "o.jpg"}, "A", true},
    {"no extension", {"-export", "pdf"}, "A", true},
    {"failed target", {"-export", "none/o.txt"}, "A", true},
    {"no pages for pictures", {"-export", "o.png"}, "", true},
    {"bad set, exported", {"-i", "s.vset#S", "-export", "o.txt"}, "A", true},
    {"bad set, printed", {"-i", "s.vset#S", "-g"}, "A", true},
    {"no pages, printed", {"-g"}, "", true},
    {"failed print", {"-g", "-p", "Microsoft Print to PDF"}, "A", true},
    {"unknown code page", {"-codepage", "99", "-export", "o.png"}, "A", true},
    {"unknown code page, printed", {"-codepage", "99", "-g"}, "A", true},
};

TEST(CleanUp, LeavesWhatNobodyHasSeen) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.what);
    const TemporaryDirectory place;
    place.write("r.txt", row.report);
    place.write("r_2.png", "side");
    place.write("s.vset", kBadSet);
    if (row.what == std::string("failed print")) place.write("r(print).pdf/in the way", "");
    std::vector<std::string> arguments = {"-dd", "-f", "r.txt"};
    arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
    runViewer(arguments, {place.path(), {}, 0});
    EXPECT_EQ(place.has("r.txt"), row.stays);
    EXPECT_EQ(place.has("r_2.png"), row.stays);
    if (row.arguments.back() == "r_1.png") {
      EXPECT_TRUE(place.read("r_1.png").starts_with("\x89PNG"));
    }
  }
}

class CleanedReport {
 public:
  CleanedReport() {
    AppOptions.FileName = place_.write("my.r.txt", "A");
    AppOptions.DeleteAfterPrint = true;
    before_ = fs::current_path();
  }
  ~CleanedReport() { fs::current_path(before_); }

  const TemporaryDirectory& place() const { return place_; }

 private:
  OptionsGuard guard_;
  TemporaryDirectory place_;
  fs::path before_;
};

TEST(CleanUp, LeavesAReportThatChanged) {
  CleanedReport report;
  const UsedReport used;
  report.place().write("my.r.txt", "another one");
  used.cleanUp(ListedFiles::erase, {});
  EXPECT_TRUE(report.place().has("my.r.txt"));
  UsedReport().cleanUp(ListedFiles::erase, {});
  EXPECT_FALSE(report.place().has("my.r.txt"));
}

std::string utf16(const std::string& ascii) {
  std::string bytes = "\xFF\xFE";
  for (const char c : ascii) bytes += c, bytes += '\0';
  return bytes;
}

// The list is "my_mail.tmp": its name ends at the report's first point. Its lines may be ANSI, or
// what a byte-order mark tells; either separator, either line end.
TEST(CleanUp, ReadsTheListOfAMailAsEditorsWriteIt) {
  for (const bool marked : {false, true}) {
    CleanedReport report;
    const TemporaryDirectory& place = report.place();
    const auto write = [&place](const char* name) { place.write(name, "x"); };
    for (const char* name : {"first.txt", "\xC3\xA9t\xC3\xA9.txt", "sub/third.txt", "kept.txt",
                             "directory/in.txt", "linked.txt", "my.r_1.jpg", "my_1.jpg"}) {
      write(name);
    }
    fs::create_symlink("kept.txt", place.path("link.txt"));
    fs::create_directory_symlink("directory", place.path("way"));
    const std::string names = "first.txt\r\n" + place.path("") +
                              (marked ? "\xC3\xA9t\xC3\xA9.txt" : "\xE9t\xE9.txt") +
                              "\nsub\\third.txt\r\n\r\nlink.txt\rway\r\ndirectory\r\nnone.txt\r\n";
    place.write("my_mail.tmp", (marked ? "\xEF\xBB\xBF" : "") + names);
    fs::current_path(place.path());
    UsedReport().cleanUp(ListedFiles::erase, {});
    EXPECT_EQ(test::names(place), (std::vector<std::string>{"directory", "kept.txt", "linked.txt",
                                                            "my_1.jpg", "my_mail.tmp", "sub"}));
    EXPECT_FALSE(place.has("sub/third.txt"));
    EXPECT_TRUE(place.has("directory/in.txt"));
  }
  CleanedReport report;
  report.place().write("my_mail.tmp", utf16("first.txt\r\n"));
  report.place().write("first.txt", "x");
  fs::current_path(report.place().path());
  UsedReport().cleanUp(ListedFiles::keep, {});
  EXPECT_TRUE(report.place().has("first.txt")) << "no user has seen the report";
  AppOptions.FileName = report.place().write("my.r.txt", "A");
  UsedReport().cleanUp(ListedFiles::erase, {});
  EXPECT_FALSE(report.place().has("first.txt"));
}

// On a file system that counts them, letters of another case make another name.
TEST(CleanUp, CountsTheCaseOfNamesAsTheFileSystemDoes) {
  CleanedReport report;
  report.place().write("MY.R_1.jpg", "x");
  report.place().write("my.r_1.JPG", "x");
  fs::create_symlink("nowhere", report.place().path("my.r_dangling.l"));
  fs::create_directory_symlink(".", report.place().path("my.r_way.l"));
  const bool countsCase = !report.place().has("My.R_1.jpg");
  UsedReport().cleanUp(ListedFiles::erase, {});
  EXPECT_EQ(report.place().has("MY.R_1.jpg"), countsCase);
  EXPECT_FALSE(report.place().has("my.r_1.JPG"));
  for (const char* link : {"my.r_dangling.l", "my.r_way.l"})
    EXPECT_FALSE(fs::is_symlink(report.place().path(link))) << link;
}

}  // namespace
}  // namespace qor::test
