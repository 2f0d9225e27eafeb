// The program on a real X server, where what its command line says of one report it doesn't say of
// another.
#include "windows/view/window.h"
#include "windows/x_server.h"

namespace qor::test {
namespace {

class OpeningProgram : public testing::Test {
 protected:
  OpeningProgram() { place_.write("r.txt", reportOfPages(3)); }

  // A window that shows a page; `program` may have another one.
  xcb_window_t page(xcb_window_t other = XCB_NONE) {
    const xcb_window_t window = server_.waitForWindow(other);
    EXPECT_TRUE(window != XCB_NONE && server_.waitForPage(window));
    return window;
  }
  std::string stored() const { return place_.read("config/QOR/QorUtlView.ini"); }
  bool isStored(const std::string& file) const { return stored().find(file) != std::string::npos; }

  XServer server_;
  const TemporaryDirectory place_;
  Surroundings around_{place_.path(),
                       {{"CUPS_SERVER", "/nowhere"},
                        {"XDG_CONFIG_HOME", place_.path("config")},
                        {"ASAN_OPTIONS", "detect_leaks=0"},
                        {"DISPLAY", server_.display()},
                        {"QT_QPA_PLATFORM", "xcb"}}};
};

TEST_F(OpeningProgram, opensReportsByTheirPathsAlone) {
  for (const std::string odd : {"a -g -dd b.txt", "\xEF -g.txt"}) {
    place_.write(odd, reportOfPages(2));
    Process program({QOR_PROGRAM, "--open", odd}, around_);
    server_.askToClose(page());
    expectTold(program.wait(), "");
    EXPECT_TRUE(place_.has(odd));
    EXPECT_FALSE(place_.has("a -g -dd b(print).pdf"));
  }
  EXPECT_TRUE(isStored("a -g -dd b.txt") && isStored("%EF%20-g.txt")) << stored();
  around_.environment["DISPLAY"] = "";
  expectTold(run({QOR_PROGRAM, "--open", "none.txt"}, around_), "none.txt", 255);
  EXPECT_EQ(run({QOR_PROGRAM}, around_).told(), "0:");
}

TEST_F(OpeningProgram, startsWithoutAReport) {
  constexpr xcb_keysym_t kReturn = 0xFF0D;
  Process program({QOR_PROGRAM}, around_);
  const xcb_window_t start = server_.waitForWindow();
  server_.pointAt(start);
  server_.press(kReturn);
  const xcb_window_t dialog = server_.waitForWindow(start);
  server_.pointAt(dialog);
  server_.type("r.txt");
  server_.press(kReturn);
  ASSERT_TRUE(server_.waitForEnd(start));
  expectTold(program.wait(), "");
  server_.askToClose(page());
  EXPECT_TRUE(QTest::qWaitFor([&] { return isStored("r.txt"); }, 30000));
}

// The report of the other window goes with it, out of the list, too.
TEST_F(OpeningProgram, outlivesTheWindowItWasOpenedFrom) {
  constexpr xcb_keysym_t kReturn = 0xFF0D, kF10 = 0xFFC7, kDown = 0xFF54, kRight = 0xFF53;
  place_.write("gone.txt", reportOfPages(1));
  for (const char* name : {"gone.txt", "r.txt"}) {
    Process program({QOR_PROGRAM, "--open", name}, around_);
    server_.askToClose(page());
    program.wait();
  }
  EXPECT_TRUE(isStored("gone.txt"));
  Process program({QOR_PROGRAM, "-f", "gone.txt", "-dd", "-caption", "Gone"}, around_);
  const xcb_window_t first = page();
  server_.pointAt(first);
  server_.press(kF10, XServer::kShift);
  const xcb_window_t menu = server_.waitForWindow(first);
  ASSERT_NE(menu, XCB_NONE);
  for (const xcb_keysym_t key : {kDown, kDown, kRight, kReturn}) server_.press(key);
  ASSERT_TRUE(server_.waitForEnd(menu));
  const xcb_window_t second = page(first);
  server_.askToClose(first);
  expectTold(program.wait(), "");
  EXPECT_FALSE(place_.has("gone.txt") || isStored("gone.txt")) << stored();
  EXPECT_TRUE(server_.waitForPage(second));
  server_.askToClose(second);
  EXPECT_TRUE(server_.waitForEnd(second));
  EXPECT_TRUE(place_.has("r.txt") && isStored("r.txt"));
}

}  // namespace
}  // namespace qor::test
