// Exports of the program on a real X server, by keys, beside those without a window.
#include <QTest>

#include "platform/print/pdf_file_printer.h"
#include "windows/export/driven_dialog.h"
#include "windows/x_server.h"

namespace qor::test {
namespace {

constexpr xcb_keysym_t kReturn = 0xFF0D;
constexpr xcb_keysym_t kF6 = 0xFFC3;
constexpr const char* kExtensions[] = {"bmp", "jpeg", "gif", "ico", "png"};

// Three pages, in the code page of the set and with its font.
const std::string kReport =
    "\x8F\xE0\xA8\xA2\xA5\xE2 <b>1<b/>\r\n<shape sh_type=2 left=20 top=20 right=60 bottom=40/>\r\n"
    "\f<barcode br_type=39 value=\"A1\" left=10 top=60 right=70 bottom=72/>2\r\n\f3\r\n\f";

class ExportProgram : public testing::Test {
 protected:
  ExportProgram() {
    std::filesystem::create_directory(place_.path("batch"));
    place_.write("r.txt", kReport);
    place_.write(
        "s.vset",
        setWith("S", "Page BaseCodePage=866|Page MarginLeft=9|Font Name=Arial|Font Height=14"));
    for (const char* name : {"bin/xdg-open", "bin/QorUtlMail"}) putRecorder(place_, name);
    around_ = {place_.path(), XServer::environmentOn(server_.display())};
    around_.environment["XDG_CONFIG_HOME"] = place_.path("config");
    around_.environment["PATH"] = place_.path("bin") + ":/usr/bin:/bin";
    around_.environment["SOURCE_DATE_EPOCH"] = "86400";
  }

  // Opens the window, has the exports done, and closes it.
  template <class Steps>
  void inWindow(const char* option, Steps steps) {
    Process program(viewer({"-f", "r.txt", "-i", "s.vset#S", option}), around_);
    window_ = server_.waitForWindow();
    ASSERT_NE(window_, XCB_NONE);
    ASSERT_TRUE(server_.waitForPage(window_));
    server_.pointAt(window_);
    steps();
    server_.askToClose(window_);
    expectTold(program.wait(), "");
  }

  // An export by the dialog: its tab and boxes by their letters. The result is opened.
  void byKeys(const std::string& letters, const std::string& target) {
    server_.press(kF6);
    const xcb_window_t dialog = server_.waitForWindow(window_);
    ASSERT_NE(dialog, XCB_NONE);
    ASSERT_TRUE(server_.waitForFocus(dialog));
    for (const char letter : letters + "da") {
      server_.press(static_cast<xcb_keysym_t>(letter), XServer::kAlt);
      QTest::qWait(250);  // a box that is ticked by its letter is down for a moment
    }
    server_.type(target);
    server_.press(kReturn);
    ASSERT_TRUE(server_.waitForEnd(dialog)) << target;
  }

  void inBatch(const std::vector<std::string>& more) {
    expectTold(runViewer(joined({"-f", "r.txt", "-i", "s.vset#S"}, more),
                         {place_.path(), {{"SOURCE_DATE_EPOCH", "86400"}}}),
               "");
  }
  void exportInBatch(const std::string& target) { inBatch({"-export", "batch/" + target}); }

  void expectSame(const std::string& file, const std::string& other) {
    EXPECT_TRUE(!place_.read(file).empty() && place_.read(file) == place_.read(other)) << file;
  }
  std::string page(const std::string& stem, int number, const std::string& extension) const {
    return stem + "(" + std::to_string(number) + ")." + extension;
  }

  XServer server_;
  TemporaryDirectory place_;
  Surroundings around_;
  xcb_window_t window_ = XCB_NONE;
};

TEST_F(ExportProgram, writesByKeysWhatIsWrittenWithoutAWindow) {
  place_.write("r_mail.tmp", place_.write("sent.txt", "") + "\r\n" + place_.path("w.html\r\n"));
  inWindow("-dd", [this] {
    byKeys("xsk", "r_w.txt");
    byKeys("hk", "w.html");
    byKeys("p", "w.pdf");
    byKeys("pm", "p.pdf");
    byKeys("ly", "w.xlsx");
    byKeys("ok", "w.doc");
    byKeys("r", "w.rtf");
    byKeys("bmgin", "w.png");
  });
  EXPECT_FALSE(place_.has("r.txt") || place_.has("sent.txt") || place_.has("r_mail.tmp"));
  EXPECT_TRUE(place_.has("r_w.txt")) << "what the user has made outlives the report";
  place_.write("r.txt", kReport);
  inWindow("-test", [this] { byKeys("e", "again.x"); });

  for (const char* target : {"r_w.txt", "w.html", "w.pdf", "w.xlsx", "w.doc", "w.rtf"})
    exportInBatch(target);
  inBatch({"-g", "-p", kPdfFilePrinter});
  for (const std::string target : {"r_w.txt", "w.html", "w.xlsx", "w.doc", "w.rtf"})
    expectSame(target, "batch/" + target);
  expectSame("p.pdf", "r(print).pdf");
  const PdfDocument told = readPdf(place_.path("w.pdf"));
  EXPECT_EQ(told.pages, 3);
  EXPECT_TRUE(told.words == readPdf(place_.path("batch/w.pdf")).words);
  std::string list;
  for (int number = 1; number <= 3; ++number) {
    for (const std::string extension : kExtensions) {
      if (number == 1) exportInBatch("w." + extension);
      for (const std::string stem : {"w", "again"})
        expectSame(page(stem, number, extension), "batch/" + page("w", number, extension));
      list += place_.path(page("again", number, extension)) + "\r\n";
    }
  }
  std::string opened;
  for (const char* file : {"r_w.txt", "w.html", "w.pdf", "p.pdf", "w.xlsx", "w.doc", "w.rtf",
                           "w(1).bmp", "again(1).bmp"})
    opened += place_.path(file) + "|";
  EXPECT_EQ(place_.read("bin/xdg-open.args"), opened);
  const std::string mail = place_.read("bin/QorUtlMail.args");
  ASSERT_TRUE(mail.starts_with("qorsil|1|" + place_.path("mail")) && mail.ends_with(".tmp| |"))
      << mail;
  EXPECT_EQ(place_.read(
                mail.substr(9 + place_.path("").size(), mail.size() - 12 - place_.path("").size())),
            list);
}

}  // namespace
}  // namespace qor::test
