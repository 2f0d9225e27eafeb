// The program with its window, on a real X server and without one.
#include "support/program.h"

#include <QProcess>
#include <QThread>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <span>
#include <stdexcept>

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include "support/temporary_directory.h"

namespace qor::test {
namespace {

// An X server, and a client of it that watches windows.
class XServer {
 public:
  XServer() {
    server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp"});
    if (!server_.waitForReadyRead()) throw std::runtime_error("no X server can be started");
    display_ = ":" + server_.readAllStandardOutput().trimmed().toStdString();
    connection_ = xcb_connect(display_.c_str(), nullptr);
    if (xcb_connection_has_error(connection_) != 0)
      throw std::runtime_error("the X server can't be reached");
    screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
  }
  ~XServer() {
    xcb_disconnect(connection_);
    server_.terminate();
    server_.waitForFinished();
  }

  const std::string& display() const { return display_; }

  // A window that nobody sees.
  xcb_window_t makeWindow() {
    const xcb_window_t window = xcb_generate_id(connection_);
    xcb_create_window(connection_, 0, window, screen_->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen_->root_visual, 0, nullptr);
    xcb_flush(connection_);
    return window;
  }

  // Waits for a window of that width to be shown: the program's own, or a box.
  xcb_window_t waitForWindow(int width = 800) {
    for (int i = 0; i < 3000; ++i) {
      for (const xcb_window_t window : windows()) {
        if (isShown(window, width)) return window;
      }
      QThread::msleep(10);
    }
    return XCB_NONE;
  }

  // Asks for its end, as the cross of its frame does.
  void askToClose(xcb_window_t window) {
    send(window, atom("WM_PROTOCOLS"), atom("WM_DELETE_WINDOW"), 0);
  }

  // The next message that comes to a window of makeWindow, or null within the time.
  std::unique_ptr<xcb_client_message_event_t, decltype(&std::free)> waitForMessage() {
    for (int i = 0; i < 3000; ++i) {
      while (xcb_generic_event_t* event = xcb_poll_for_event(connection_)) {
        if ((event->response_type & 0x7F) == XCB_CLIENT_MESSAGE)
          return {reinterpret_cast<xcb_client_message_event_t*>(event), &std::free};
        std::free(event);
      }
      QThread::msleep(10);
    }
    return {nullptr, &std::free};
  }

 private:
  std::vector<xcb_window_t> windows() {
    xcb_query_tree_reply_t* tree =
        xcb_query_tree_reply(connection_, xcb_query_tree(connection_, screen_->root), nullptr);
    const std::span children(xcb_query_tree_children(tree), tree->children_len);
    std::vector<xcb_window_t> found(children.begin(), children.end());
    std::free(tree);
    return found;
  }

  bool isShown(xcb_window_t window, int width) {
    auto* state = xcb_get_window_attributes_reply(
        connection_, xcb_get_window_attributes(connection_, window), nullptr);
    auto* place =
        xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr);
    const bool shown = state != nullptr && place != nullptr &&
                       state->map_state == XCB_MAP_STATE_VIEWABLE && place->width >= width;
    std::free(state);
    std::free(place);
    return shown;
  }

  xcb_atom_t atom(const std::string& name) {
    auto* reply = xcb_intern_atom_reply(
        connection_,
        xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.c_str()),
        nullptr);
    const xcb_atom_t found = reply->atom;
    std::free(reply);
    return found;
  }

  void send(xcb_window_t window, xcb_atom_t type, std::uint32_t first, std::uint32_t second) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = type;
    event.data.data32[0] = first;
    event.data.data32[1] = second;
    xcb_send_event(connection_, 0, window, 0, reinterpret_cast<const char*>(&event));
    xcb_flush(connection_);
  }

  QProcess server_;
  std::string display_;
  xcb_connection_t* connection_ = nullptr;
  xcb_screen_t* screen_ = nullptr;
};

// Where the program meets the server. The sanitizer's search for leaks trips over the threads of
// the desktop's libraries, which end while it looks, and over what these libraries keep.
std::map<std::string, std::string> environmentOn(const std::string& display) {
  return {{"DISPLAY", display}, {"QT_QPA_PLATFORM", "xcb"}, {"ASAN_OPTIONS", "detect_leaks=0"}};
}

TEST(PreviewProgram, tellsItsOwnerAndCleansUpWhenItIsClosed) {
  XServer server;
  const TemporaryDirectory place;
  for (const char* name : {"rep0731.txt", "rep0731_shape_1.jpeg", "listed.txt", "kept.txt"})
    place.write(name, "A\r\n\f");
  place.write("rep0731_mail.tmp", place.path("listed.txt") + "\n");
  const xcb_window_t owner = server.makeWindow();
  auto environment = environmentOn(server.display());
  environment["HOME"] = place.path();
  Process program(viewer({"-f", "rep0731.txt", "-dd", "-handle", std::to_string(owner)}),
                  {place.path(), environment});
  const xcb_window_t window = server.waitForWindow();
  ASSERT_NE(window, XCB_NONE);
  server.askToClose(window);
  const auto message = server.waitForMessage();
  ASSERT_NE(message, nullptr);
  EXPECT_EQ(message->window, owner);
  EXPECT_EQ(message->type, 0x8001U);
  EXPECT_EQ(message->format, 32);
  EXPECT_EQ(message->data.data32[0], 731U);
  EXPECT_EQ(message->data.data32[1], owner);
  const Outcome outcome = program.wait();
  EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
  for (const char* name : {"rep0731.txt", "rep0731_shape_1.jpeg", "rep0731_mail.tmp", "listed.txt"})
    EXPECT_FALSE(place.has(name)) << name;
  EXPECT_TRUE(place.has("kept.txt"));
}

TEST(PreviewProgram, closesInTheOrdinaryWayWhenASignalAsksForIt) {
  XServer server;
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    const TemporaryDirectory place;
    place.write("rep0042.txt", "A\r\n\f");
    const xcb_window_t owner = server.makeWindow();
    auto environment = environmentOn(server.display());
    environment["XDG_CONFIG_HOME"] = place.path("config");
    std::vector<std::string> command = {"sh", "-c", "echo $$ > id; exec \"$@\"", "sh"};
    for (const std::string& word : viewer({"-f", "rep0042.txt", "-handle", std::to_string(owner)}))
      command.push_back(word);
    Process program(command, {place.path(), environment});
    ASSERT_NE(server.waitForWindow(), XCB_NONE);
    ASSERT_EQ(::kill(std::stoi(place.read("id")), signal), 0);
    const auto message = server.waitForMessage();
    ASSERT_NE(message, nullptr) << signal;
    EXPECT_EQ(message->data.data32[0], 42U);
    const Outcome outcome = program.wait();
    EXPECT_EQ(outcome.signal, 0) << signal;
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
    EXPECT_TRUE(place.has("config/QOR/QorUtlView.ini")) << signal;
  }
}

// A clerk sees no standard error. Behind the box the run ends as it does without a display.
TEST(PreviewProgram, showsInABoxWhyItDoesNotStart) {
  struct Row {
    std::vector<std::string> arguments;
    const char* told;
    int exitCode;
  };
  XServer server;
  for (const Row& row :
       {Row{{"-f", "none.txt"}, "none.txt", 255}, Row{{"-f", "directory"}, "directory", 255},
        Row{{"-f", "r.txt", "-i", "s.vset#S"}, "NumOfCopies: \"many\"", 0}}) {
    SCOPED_TRACE(row.told);
    const TemporaryDirectory place;
    place.write("r.txt", "A\r\n");
    place.write("directory/inside", "");
    place.write(
        "s.vset",
        "<Set SetName=\"S\">\r\n<Print>\r\n<NumOfCopies = \"many\"/>\r\n<Print/>\r\n<Set/>\r\n");
    for (const bool display : {true, false}) {
      auto environment = environmentOn(display ? server.display() : ":-1");
      Process program(viewer(row.arguments), {place.path(), environment});
      if (display) {
        const xcb_window_t box = server.waitForWindow(100);
        ASSERT_NE(box, XCB_NONE);
        EXPECT_TRUE(program.isRunning());
        server.askToClose(box);
      }
      const Outcome outcome = program.wait();
      EXPECT_EQ(outcome.exitCode, row.exitCode);
      EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1)
          << outcome.errors;
      EXPECT_NE(outcome.errors.find(row.told), std::string::npos) << outcome.errors;
    }
  }
}

TEST(PreviewProgram, saysInOneLineThatThereIsNoDisplay) {
  const TemporaryDirectory place;
  place.write("r.txt", "A\r\n\f");
  const Outcome outcome = runViewer({"-f", "r.txt", "-dd"}, {place.path(), environmentOn(":-1")});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
  EXPECT_EQ(outcome.signal, 0);
  EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1) << outcome.errors;
  EXPECT_NE(outcome.errors.find("no window can be opened"), std::string::npos) << outcome.errors;
  EXPECT_TRUE(place.has("r.txt")) << "nobody has seen it";
}

}  // namespace
}  // namespace qor::test
