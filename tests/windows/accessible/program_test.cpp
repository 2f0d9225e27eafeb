// The program as a screen reader meets it: on a bus of its own, from another process.
#include "support/test.h"
#include "windows/x_server.h"

namespace qor::test {
namespace {

constexpr const char* kHeard =
    "Page 1 of 3, r.txt\n"
    "first page\n"
    "its second line\n"
    "0xff56:\n"
    "  text-changed:delete 0 first page\n"
    "  text-changed:insert 0 another\n"
    "  text-caret-moved 0\n"
    "  notice Page 2 of 3\n"
    "Page 2 of 3, r.txt\n"
    "another\n"
    "a z b\n"
    "0xffc0:\n"
    "  focus Find in the report\n"
    "0x7a:\n"
    "  text-caret-moved 10\n"
    "  notice 1 of 2: a z b\n"
    "  before the mark 10\n"
    "0xff0d:\n"
    "  text-changed:delete 0 another\n"
    "  text-changed:insert 0 and\n"
    "  text-caret-moved 0\n"
    "  text-caret-moved 15\n"
    "  notice 2 of 2: the third z\n"
    "  before the mark 15\n"
    "selection:\n"
    "  text-caret-moved 6\n"
    "  text-selection-changed 0\n"
    "  nd\n t\n";

TEST(SpokenProgram, tellsPagesHitsAndSelections) {
  XServer server;
  const TemporaryDirectory place;
  const TemporaryDirectory home;
  place.write("r.txt", "first page\r\nits second line\fanother\r\na z b\fand\r\n the third z");
  auto environment = XServer::environmentOn(server.display());
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
    environment[name] = home.path();
  environment["LC_ALL"] = "C.UTF-8";
  environment["CUPS_SERVER"] = "/nowhere";
  environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1";
  Process listener({"dbus-run-session", "--", "/usr/bin/python3",
                    QOR_SOURCE_DIR "/tests/windows/accessible/listen.py", QOR_PROGRAM, "r.txt"},
                   {place.path(), environment});
  const xcb_window_t window = server.waitForWindow();
  ASSERT_TRUE(window != XCB_NONE && server.waitForPage(window));
  server.activate(window);
  const Outcome outcome = listener.wait();
  // The bus has a word of its own before.
  const std::size_t start = std::min(outcome.output.find("Page"), outcome.output.size());
  EXPECT_EQ(outcome.output.substr(start), kHeard) << outcome.errors;
}

}  // namespace
}  // namespace qor::test
