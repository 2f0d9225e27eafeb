// The program with its window, on a real X server and without one.
#include <csignal>

#include "support/test.h"
#include "windows/x_server.h"

namespace qor::test {
namespace {

TEST(PreviewProgram, tellsItsOwnerAndCleansUpHoweverItIsEnded) {
  XServer server;
  for (const int signal : {0, SIGTERM, SIGINT, SIGHUP}) {
    SCOPED_TRACE(signal);
    const TemporaryDirectory place;
    for (const char* name : {"rep0731.txt", "rep0731_shape_1.jpeg", "kept.txt"})
      place.write(name, "A\r\n\f");
    const xcb_window_t owner = server.makeWindow();
    auto environment = XServer::environmentOn(server.display());
    environment["XDG_CONFIG_HOME"] = place.path("config");
    const std::string command = "echo $$ > id; exec '" QOR_PROGRAM "' -f rep0731.txt -dd -handle ";
    Process program({"sh", "-c", command + std::to_string(owner)}, {place.path(), environment});
    const xcb_window_t window = server.waitForWindow();
    ASSERT_NE(window, XCB_NONE);
    ASSERT_TRUE(server.waitForPage(window));
    if (signal == 0) {
      server.askToClose(window);
    } else {
      ASSERT_EQ(::kill(std::stoi(place.read("id")), signal), 0);
    }
    const xcb_client_message_event_t message = server.waitForMessage();
    EXPECT_EQ(std::tuple(message.window, message.type, message.format),
              std::tuple(owner, 0x8001U, 32));
    EXPECT_EQ(std::pair(message.data.data32[0], message.data.data32[1]), std::pair(731U, owner));
    const Outcome outcome = program.wait();
    EXPECT_EQ(outcome.signal, 0);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
    EXPECT_TRUE(place.has("config/QOR/QorUtlView.ini"));
    EXPECT_TRUE(place.has("kept.txt") && !place.has("rep0731.txt") &&
                !place.has("rep0731_shape_1.jpeg"));
  }
}

// A page that can't be read is told in the window, and none of them loses the report.
TEST(PreviewProgram, showsInABoxWhyItDoesNotStart) {
  const std::tuple<std::vector<std::string>, bool, const char*, int> rows[] = {
      {{"-f", "none.txt"}, true, "none.txt", 255},
      {{"-f", "r.txt", "-i", "s.vset#S"}, true, "NumOfCopies: \"many\"", 0},
      {{"-f", "r.txt", "-dd", "-codepage", "99999"}, true, "", 0},
      {{"-f", "r.txt", "-dd"}, false, "no window can be opened", 0}};
  XServer server;
  const TemporaryDirectory place;
  place.write("r.txt", "A\r\n");
  place.write("s.vset", setWith("S", "Print NumOfCopies=many"));
  for (const auto& [arguments, display, told, exitCode] : rows) {
    SCOPED_TRACE(told);
    auto environment = XServer::environmentOn(display ? server.display() : ":-1");
    Process program(viewer(arguments), {place.path(), environment});
    if (display) {
      const xcb_window_t box = server.waitForWindow();
      ASSERT_NE(box, XCB_NONE);
      EXPECT_TRUE(program.isRunning());
      server.askToClose(box);
    }
    expectTold(program.wait(), told, exitCode);
  }
  EXPECT_TRUE(place.has("r.txt")) << "nobody has seen it";
}

}  // namespace
}  // namespace qor::test
