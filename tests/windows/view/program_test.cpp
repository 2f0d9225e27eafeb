// The program with its window, on a real X server and without one.
#include "support/program.h"

#include <QProcess>
#include <QTest>
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

// What the server's library leaves to be freed.
template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> held(Reply* reply) {
  return {reply, &std::free};
}

// An X server, and a client of it that watches windows.
class XServer {
 public:
  XServer() {
    server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp"});
    if (!server_.waitForReadyRead()) throw std::runtime_error("no X server can be started");
    display_ = ":" + server_.readAllStandardOutput().trimmed().toStdString();
    connection_ = xcb_connect(display_.c_str(), nullptr);
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

  // Waits for a window to be shown that is no helper of the desktop's libraries.
  xcb_window_t waitForWindow() {
    xcb_window_t shown = XCB_NONE;
    const auto comes = [&] { return (shown = shownWindow()) != XCB_NONE; };
    return QTest::qWaitFor(comes, 30000) ? shown : xcb_window_t(XCB_NONE);
  }

  // Waits for the white of a page in the middle of a window: a busy machine shows the window first.
  bool waitForPage(xcb_window_t window) {
    const auto isWhite = [&] {
      const auto image = held(xcb_get_image_reply(
          connection_,
          xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 500, 400, 1, 1, ~0U),
          nullptr));
      if (!image || xcb_get_image_data_length(image.get()) < 3) return false;
      const std::uint8_t* dot = xcb_get_image_data(image.get());
      return std::min({dot[0], dot[1], dot[2]}) == 255;
    };
    return QTest::qWaitFor(isWhite, 30000);
  }

  // Asks for its end, as the cross of its frame does.
  void askToClose(xcb_window_t window) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom("WM_PROTOCOLS");
    event.data.data32[0] = atom("WM_DELETE_WINDOW");
    xcb_send_event(connection_, 0, window, 0, reinterpret_cast<const char*>(&event));
    xcb_flush(connection_);
  }

  // The next message that comes to a window of makeWindow; an empty one where none comes.
  xcb_client_message_event_t waitForMessage() {
    auto event = held<xcb_generic_event_t>(nullptr);
    const auto comes = [&] {
      event = held(xcb_poll_for_event(connection_));
      return event && (event->response_type & 0x7F) == XCB_CLIENT_MESSAGE;
    };
    if (!QTest::qWaitFor(comes, 30000)) return {};
    return *reinterpret_cast<const xcb_client_message_event_t*>(event.get());
  }

 private:
  xcb_window_t shownWindow() {
    const auto tree = held(
        xcb_query_tree_reply(connection_, xcb_query_tree(connection_, screen_->root), nullptr));
    for (const xcb_window_t window :
         std::span(xcb_query_tree_children(tree.get()), tree->children_len)) {
      const auto state = held(xcb_get_window_attributes_reply(
          connection_, xcb_get_window_attributes(connection_, window), nullptr));
      const auto place =
          held(xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr));
      if (state && place && state->map_state == XCB_MAP_STATE_VIEWABLE && place->width >= 100)
        return window;
    }
    return XCB_NONE;
  }

  xcb_atom_t atom(std::string_view name) {
    const auto length = static_cast<std::uint16_t>(name.size());
    const auto cookie = xcb_intern_atom(connection_, 0, length, name.data());
    return held(xcb_intern_atom_reply(connection_, cookie, nullptr))->atom;
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

TEST(PreviewProgram, tellsItsOwnerAndCleansUpHoweverItIsEnded) {
  XServer server;
  for (const int signal : {0, SIGTERM, SIGINT, SIGHUP}) {
    SCOPED_TRACE(signal);
    const TemporaryDirectory place;
    for (const char* name : {"rep0731.txt", "rep0731_shape_1.jpeg", "kept.txt"})
      place.write(name, "A\r\n\f");
    const xcb_window_t owner = server.makeWindow();
    auto environment = environmentOn(server.display());
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
  place.write(
      "s.vset",
      "<Set SetName=\"S\">\r\n<Print>\r\n<NumOfCopies = \"many\"/>\r\n<Print/>\r\n<Set/>\r\n");
  for (const auto& [arguments, display, told, exitCode] : rows) {
    SCOPED_TRACE(told);
    auto environment = environmentOn(display ? server.display() : ":-1");
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
