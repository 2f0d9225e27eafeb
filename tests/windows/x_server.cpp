// Talking to an X server.
#include "windows/x_server.h"

#include <QTest>
#include <cstdlib>
#include <memory>
#include <span>
#include <stdexcept>
#include <vector>

#include <xcb/xtest.h>

namespace qor::test {
namespace {

constexpr int kPatience = 30000;  // ms

// What the server's library leaves to be freed.
template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> held(Reply* reply) {
  return {reply, &std::free};
}

}  // namespace

XServer::XServer() {
  server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp"});
  if (!server_.waitForReadyRead()) throw std::runtime_error("no X server can be started");
  display_ = ":" + server_.readAllStandardOutput().trimmed().toStdString();
  connection_ = xcb_connect(display_.c_str(), nullptr);
  screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
}

XServer::~XServer() {
  xcb_disconnect(connection_);
  server_.terminate();
  server_.waitForFinished();
}

std::map<std::string, std::string> XServer::environmentOn(const std::string& display) {
  return {{"DISPLAY", display}, {"QT_QPA_PLATFORM", "xcb"}, {"ASAN_OPTIONS", "detect_leaks=0"}};
}

xcb_window_t XServer::makeWindow() {
  const xcb_window_t window = xcb_generate_id(connection_);
  xcb_create_window(connection_, 0, window, screen_->root, 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, screen_->root_visual, 0, nullptr);
  xcb_flush(connection_);
  return window;
}

xcb_window_t XServer::waitForWindow(xcb_window_t other) {
  xcb_window_t shown = XCB_NONE;
  const auto comes = [&] { return (shown = shownWindow(other)) != XCB_NONE; };
  return QTest::qWaitFor(comes, kPatience) ? shown : xcb_window_t(XCB_NONE);
}

bool XServer::waitForPage(xcb_window_t window) {
  const auto isWhite = [&] {
    const auto image = held(xcb_get_image_reply(
        connection_,
        xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 500, 400, 1, 1, ~0U),
        nullptr));
    if (!image || xcb_get_image_data_length(image.get()) < 3) return false;
    const std::uint8_t* dot = xcb_get_image_data(image.get());
    return std::min({dot[0], dot[1], dot[2]}) == 255;
  };
  return QTest::qWaitFor(isWhite, kPatience);
}

bool XServer::waitForEnd(xcb_window_t window) {
  return QTest::qWaitFor([&] { return !isShown(window); }, kPatience);
}

bool XServer::isShown(xcb_window_t window) {
  const auto state = held(xcb_get_window_attributes_reply(
      connection_, xcb_get_window_attributes(connection_, window), nullptr));
  return state && state->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool XServer::waitForFocus(xcb_window_t window) {
  const auto hasFocus = [&] {
    const auto focus =
        held(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    return focus && focus->focus == window;
  };
  return QTest::qWaitFor(hasFocus, kPatience);
}

QRect XServer::placeOf(xcb_window_t window) {
  const auto place =
      held(xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr));
  return place ? QRect(place->x, place->y, place->width, place->height) : QRect();
}

void XServer::pointAt(xcb_window_t window) {
  fake(XCB_MOTION_NOTIFY, 0, placeOf(window).center());
}

void XServer::activate(xcb_window_t window) {
  xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
  xcb_flush(connection_);
}

void XServer::fake(std::uint8_t kind, std::uint8_t detail, QPoint place) {
  xcb_test_fake_input(connection_, kind, detail, XCB_CURRENT_TIME, screen_->root,
                      static_cast<std::int16_t>(place.x()), static_cast<std::int16_t>(place.y()),
                      0);
  xcb_flush(connection_);
}

std::pair<xcb_keycode_t, bool> XServer::keyOf(xcb_keysym_t symbol) {
  const xcb_setup_t& setup = *xcb_get_setup(connection_);
  const auto count = static_cast<std::uint8_t>(setup.max_keycode - setup.min_keycode + 1);
  const auto mapping = held(xcb_get_keyboard_mapping_reply(
      connection_, xcb_get_keyboard_mapping(connection_, setup.min_keycode, count), nullptr));
  const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
  for (const int level : {0, 1}) {
    for (int code = 0; code < count; ++code) {
      if (symbols[code * mapping->keysyms_per_keycode + level] == symbol)
        return {static_cast<xcb_keycode_t>(setup.min_keycode + code), level == 1};
    }
  }
  throw std::runtime_error("the X server has no such key");
}

void XServer::press(xcb_keysym_t symbol, xcb_keysym_t held) {
  const auto [code, shift] = keyOf(symbol);
  std::vector<xcb_keycode_t> keys;
  if (held != XCB_NONE) keys.push_back(keyOf(held).first);
  if (shift) keys.push_back(keyOf(kShift).first);
  keys.push_back(code);
  for (const xcb_keycode_t key : keys) fake(XCB_KEY_PRESS, key);
  for (const xcb_keycode_t key : keys) fake(XCB_KEY_RELEASE, key);
}

void XServer::type(std::string_view text) {
  for (const char c : text) press(static_cast<xcb_keysym_t>(c));
}

void XServer::clickFromCorner(xcb_window_t window, int right, int bottom) {
  fake(XCB_MOTION_NOTIFY, 0, placeOf(window).bottomRight() - QPoint(right, bottom));
  fake(XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1);
  fake(XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1);
}

void XServer::askToClose(xcb_window_t window) {
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = window;
  event.type = atom("WM_PROTOCOLS");
  event.data.data32[0] = atom("WM_DELETE_WINDOW");
  xcb_send_event(connection_, 0, window, 0, reinterpret_cast<const char*>(&event));
  xcb_flush(connection_);
}

xcb_client_message_event_t XServer::waitForMessage() {
  auto event = held<xcb_generic_event_t>(nullptr);
  const auto comes = [&] {
    event = held(xcb_poll_for_event(connection_));
    return event && (event->response_type & 0x7F) == XCB_CLIENT_MESSAGE;
  };
  if (!QTest::qWaitFor(comes, kPatience)) return {};
  return *reinterpret_cast<const xcb_client_message_event_t*>(event.get());
}

xcb_window_t XServer::shownWindow(xcb_window_t other) {
  const auto tree =
      held(xcb_query_tree_reply(connection_, xcb_query_tree(connection_, screen_->root), nullptr));
  for (const xcb_window_t window :
       std::span(xcb_query_tree_children(tree.get()), tree->children_len))
    if (placeOf(window).width() >= 100 && window != other && isShown(window)) return window;
  return XCB_NONE;
}

xcb_atom_t XServer::atom(std::string_view name) {
  const auto length = static_cast<std::uint16_t>(name.size());
  const auto cookie = xcb_intern_atom(connection_, 0, length, name.data());
  return held(xcb_intern_atom_reply(connection_, cookie, nullptr))->atom;
}

}  // namespace qor::test
