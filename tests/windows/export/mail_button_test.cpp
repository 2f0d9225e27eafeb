// The mail button, with a companion of the test's own.
#include "support/test.h"
#include "windows/export/driven_dialog.h"

namespace qor::test {
namespace {

class MailButton : public testing::Test {
 protected:
  MailButton() { putRecorder(programs_, "QorUtlMail"); }

  TemporaryDirectory programs_;
  Variable path_{"PATH", programs_.path().c_str()};
};

TEST_F(MailButton, exportsAsRememberedAndHandsOver) {
  Window window(withExports("A\r\n\fB\r\n\fC\r\n", {{"CheckPNG", 1}, {"ID_of_Convert", 5}}));
  const TemporaryDirectory& place = window.directory();
  std::string list;
  for (int page = 1; page <= 3; ++page)
    list += place.path("report(" + std::to_string(page) + ").png") + "\r\n";
  const std::string old = place.write("old.png", "of the last mail");
  place.write("report_mail.tmp", old + "\r\n" + place.path("report(3).png\r\n"));
  window.press("F5");
  ASSERT_TRUE(waitForFile(programs_.path("QorUtlMail.args")));
  EXPECT_EQ(programs_.read("QorUtlMail.args").substr(0, 9), "qorsil|1|");
  EXPECT_EQ(place.read("report_mail.tmp"), list);
  EXPECT_FALSE(place.has("old.png"));
  EXPECT_TRUE(place.has("report(3).png"));
  EXPECT_EQ(window.status(), "");
  EXPECT_TRUE(window.form().madeFiles().empty()) << "they are the mail's";
}

// What the last mail has sent goes once there is something new; a link in the list's place goes
// itself, whatever it leads to.
TEST_F(MailButton, losesNothing) {
  Window window(withExports("A\r\n"));
  const TemporaryDirectory& place = window.directory();
  const std::string old = place.write("old.html", "of the last mail");
  const std::string list = old + "\r\n" + place.path("report(conv).txt") + "\r\n";
  place.write("report_mail.tmp", list);
  std::filesystem::create_symlink("report.txt", place.path("report(conv).txt"));
  window.press("F5");
  EXPECT_NE(window.status().find("report(conv).txt"), std::string::npos) << window.status();
  EXPECT_TRUE(place.has("old.html"));
  EXPECT_EQ(place.read("report_mail.tmp"), list);

  std::filesystem::remove(place.path("report(conv).txt"));
  std::filesystem::remove(place.path("report_mail.tmp"));
  std::filesystem::create_symlink("report.txt", place.path("report_mail.tmp"));
  window.press("F5");
  EXPECT_EQ(window.status(), "");
  EXPECT_EQ(place.read("report.txt"), "A\r\n");
  EXPECT_EQ(place.read("report_mail.tmp"), place.path("report(conv).txt") + "\r\n");
}

}  // namespace
}  // namespace qor::test
