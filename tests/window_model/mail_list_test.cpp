// Lists of files for mail, and what is deleted by them.
#include "window_model/mail_list.h"

#include "support/test.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

// A clock that tells these milliseconds since its start, one after the other, and stays at the
// last.
MailClock clockOf(const std::vector<std::string>& moments) {
  return [moments, next = std::size_t{0}]() mutable {
    const int now = std::stoi(moments[std::min(next++, moments.size() - 1)]);
    return std::chrono::system_clock::time_point(std::chrono::milliseconds(now));
  };
}

class MailList : public testing::Test {
 protected:
  std::string at(const std::string& name) const { return place_.path(name); }

  TemporaryDirectory place_;
  Variable code_page_{"QOR_ANSI_CODEPAGE", "1254"};
};

TEST_F(MailList, hasANameThatNothingHas) {
  const auto rows = rowsOf(
      "7123 mail0712.tmp|59007 mail5907.tmp|119050 mail5950.tmp|60999 mail0099.tmp|"
      "1010,1020 mail0120.tmp|2000 mail02002.tmp|2000,61010,3400 mail0340.tmp");
  // Also what is no regular file.
  for (const char* name : {"mail0110.tmp", "mail0200.tmp", "mail02000.tmp"}) place_.write(name, "");
  fs::create_symlink("nowhere", at("mail02001.tmp"));
  for (const auto& [moments, name] : rows)
    EXPECT_EQ(MakeTempName(at(""), clockOf(linesOf(moments, ','))), name);
}

TEST_F(MailList, isReadByTheCompanion) {
  const std::string ansi = at("\xC5\x9E b.txt");
  const std::string list = writeMailList({ansi, at("c\xE2\x80\x94.txt")});
  EXPECT_TRUE(list.starts_with(at("mail")) && list.ends_with(".tmp"));
  EXPECT_EQ(readFile(list), at("\xDE b.txt\r\n") + at("c\x97.txt\r\n"));
  const std::string wide = writeMailList({ansi, at("\xD0\xB6.txt")});
  EXPECT_NE(wide, list);
  EXPECT_EQ(readFile(wide), "\xEF\xBB\xBF" + ansi + "\r\n" + at("\xD0\xB6.txt\r\n"));
  EXPECT_EQ(mailArguments(2, list), (Names{"qorsil", "2", list, " "}));
  const fs::path before = fs::current_path();
  fs::current_path(at(""));
  const std::string relative = writeMailList({".txt"});
  fs::current_path(before);
  EXPECT_EQ(readFile(relative), at(".txt\r\n"));
  EXPECT_EQ(fs::path(relative).parent_path(), fs::path(at("")).parent_path());
  const Names names = place_.names();
  for (const char* name : {"a\n/etc/b", "a\rb"}) {
    EXPECT_THROW(writeMailList({at("a"), at(name)}), FileError);
    EXPECT_THROW(rememberMail(at("r.txt"), {at(name)}), FileError);
  }
  EXPECT_THROW(rememberMail(at("none/r.txt"), {at("a")}), FileError);
  EXPECT_EQ(place_.names(), names);
}

TEST_F(MailList, isDeletedWithItsFilesAndNothingElse) {
  const std::string report = place_.write("my.r.txt", "x");
  Names files = {report,         at("way.txt"),  at("directory"),
                 at("none.txt"), at("kept.txt"), at("dangling")};
  for (const char* name : {"kept.txt", "other.txt", "directory/in.txt", "sub/b.txt"})
    place_.write(name, "x");
  fs::create_symlink("kept.txt", at("way.txt"));
  fs::create_symlink("11998", at("alias"));
  fs::create_symlink("nowhere", at("dangling"));
  fs::create_directory_symlink("directory", at("road"));
  files.insert(files.end(), {at("road"), at("sub\\b.txt")});
  for (int i = 0; i < 12000; ++i) files.push_back(place_.write(std::to_string(i), ""));
  EXPECT_EQ(lastMailList(report), at("my_mail.tmp"));
  EXPECT_EQ(lastMailList("d.e/.r.txt"), "d.e/.r_mail.tmp");
  rememberMail(report, files);
  ASSERT_EQ(filesOfLastMail(report).size(), files.size());
  const Names targets = {at("new.txt"), at("kept.txt"), at("alias")};
  deleteLastMail(report, targets);
  EXPECT_EQ(place_.names(),
            wordsOf("11998 11998 directory/ directory/in.txt kept.txt my.r.txt other.txt sub/"));
  deleteLastMail(report, targets);
  EXPECT_TRUE(filesOfLastMail(report).empty());
  EXPECT_TRUE(place_.has("my.r.txt"));

  fs::create_symlink("other.txt", at("my_mail.tmp"));
  rememberMail(report, {at("kept.txt")});
  EXPECT_EQ(place_.read("other.txt"), "x") << "nobody has made it a list";
  deleteLastMail(report, {});
  EXPECT_EQ(place_.names(),
            wordsOf("11998 11998 directory/ directory/in.txt my.r.txt other.txt sub/"));
}

}  // namespace
}  // namespace qor::test
