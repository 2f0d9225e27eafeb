// What cleaning up behind a report in a window deletes, and what it never does.
#include <unistd.h>

#include "app/side_files.h"
#include "support/test.h"
#include "window_model/mail_list.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;

// The list is "my_mail.tmp": its name ends at the report's first point.
class CleanUp : public testing::Test {
 protected:
  CleanUp() {
    put("my.r.txt", "A");
    AppOptions.FileName = place_.path("my.r.txt");
    AppOptions.DeleteAfterPrint = true;
    fs::current_path(place_.path());
  }
  ~CleanUp() override { fs::current_path(before_); }

  void put(const std::string& name, const std::string& bytes = "x") { place_.write(name, bytes); }

  OptionsGuard guard_;
  fs::path before_ = fs::current_path();
  TemporaryDirectory place_;
};

TEST_F(CleanUp, leavesAReportThatChanged) {
  const UsedReport used;
  put("my.r.txt", "another one");
  put("my_mail.tmp", "listed.txt\r\n");
  put("listed.txt");
  used.cleanUp(ListedFiles::erase, {});
  EXPECT_TRUE(place_.has("my.r.txt"));
  UsedReport().cleanUp(ListedFiles::keep, {});
  EXPECT_FALSE(place_.has("my.r.txt"));
  EXPECT_TRUE(place_.has("listed.txt"));
}

// Its lines may be ANSI, or what a byte-order mark tells; either separator, either line end.
TEST_F(CleanUp, readsTheListOfAMailAsEditorsWriteIt) {
  const std::string lines = "first.txt\r\n" + place_.path("") + "*t*.txt\nsub\\third.txt\r\n\r\n" +
                            "link.txt\rway\r\ndirectory\r\nnone.txt\r\n";
  std::string wide = "\xFF\xFE";
  for (const char c : lines) wide += c == '*' ? '\xE9' : c, wide += '\0';
  const auto with = [&lines](const std::string& letter) {
    return std::string(lines).replace(lines.find("*t*"), 3, letter + "t" + letter);
  };
  for (const std::string& list : {with("\xE9"), "\xEF\xBB\xBF" + with("\xC3\xA9"), wide}) {
    for (const std::string& name :
         wordsOf("my.r.txt first.txt \xC3\xA9t\xC3\xA9.txt sub/third.txt kept.txt directory/in.txt "
                 "linked.txt my.r_1.jpg my_1.jpg"))
      put(name);
    put("my_mail.tmp", list);
    fs::create_symlink("kept.txt", place_.path("link.txt"));
    fs::create_directory_symlink("directory", place_.path("way"));
    UsedReport().cleanUp(ListedFiles::erase, {});
    EXPECT_EQ(place_.names(), wordsOf("directory/ directory/in.txt kept.txt linked.txt my_1.jpg "
                                      "my_mail.tmp sub/"));
  }
}

// Of a link, and of another user's list (where the test may give files away), nobody knows whose
// wish it is.
TEST_F(CleanUp, readsNoListThatSomebodyElseMayHavePutThere) {
  put("listed.txt");
  put("their.tmp", "listed.txt\r\n");
  fs::create_symlink("their.tmp", place_.path("my_mail.tmp"));
  EXPECT_EQ(filesOfLastMail(AppOptions.FileName), wordsOf(""));
  fs::remove(place_.path("my_mail.tmp"));
  put("my_mail.tmp", "listed.txt\r\n");
  EXPECT_EQ(filesOfLastMail(AppOptions.FileName), wordsOf("listed.txt"));
  if (::chown(place_.path("my_mail.tmp").c_str(), 12345, 12345) != 0) return;
  EXPECT_EQ(filesOfLastMail(AppOptions.FileName), wordsOf(""));
  ASSERT_EQ(::chown(AppOptions.FileName.c_str(), 12345, 12345), 0);
  EXPECT_EQ(filesOfLastMail(AppOptions.FileName), wordsOf("listed.txt")) << "the report's owner";
}

// On a file system that counts them, letters of another case make another name.
TEST_F(CleanUp, countsTheCaseOfNamesAsTheFileSystemDoes) {
  put("MY.R_1.jpg");
  put("my.r_1.JPG");
  fs::create_symlink("nowhere", place_.path("my.r_dangling.l"));
  fs::create_directory_symlink(".", place_.path("my.r_way.l"));
  const bool countsCase = !place_.has("My.R_1.jpg");
  UsedReport().cleanUp(ListedFiles::erase, {});
  EXPECT_EQ(place_.names(), wordsOf(countsCase ? "MY.R_1.jpg" : ""));
}

}  // namespace
}  // namespace qor::test
