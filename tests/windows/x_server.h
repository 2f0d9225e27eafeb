// An X server, and a client of it that watches windows and fakes what users do.
#pragma once

#include <QProcess>
#include <QRect>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include <xcb/xcb.h>

namespace qor::test {

class XServer {
 public:
  XServer();
  ~XServer();

  const std::string& display() const { return display_; }

  // The environment of a program that is to meet the server. The sanitizer's search for leaks trips
  // over the threads of the desktop's libraries, which end while it looks, and over what these
  // libraries keep.
  static std::map<std::string, std::string> environmentOn(const std::string& display);

  // A window that nobody sees.
  xcb_window_t makeWindow();

  // Waits for a window to be shown that is no helper of the desktop's libraries, nor `other`.
  xcb_window_t waitForWindow(xcb_window_t other = XCB_NONE);

  // Waits for the white of a page in the middle of a window: a busy machine shows the window first.
  bool waitForPage(xcb_window_t window);

  // Waits for a window to be hidden.
  bool waitForEnd(xcb_window_t window);

  // Waits for the keys to go to a window that has opened over another one.
  bool waitForFocus(xcb_window_t window);

  // Puts the pointer over the middle of the only window, to which keys go then: nobody manages
  // windows here.
  void pointAt(xcb_window_t window);

  // Makes a window the active one, as who manages windows would.
  void activate(xcb_window_t window);

  // Presses a key by its symbol, while another one is held if asked; types letters, digits and
  // marks.
  static constexpr xcb_keysym_t kAlt = 0xFFE9;
  static constexpr xcb_keysym_t kShift = 0xFFE1;
  void press(xcb_keysym_t symbol, xcb_keysym_t held = XCB_NONE);
  void type(std::string_view text);

  // Clicks at a place that is so far from the right and lower edge of a window, pixels.
  void clickFromCorner(xcb_window_t window, int right, int bottom);

  // Asks for its end, as the cross of its frame does.
  void askToClose(xcb_window_t window);

  // The next message that comes to a window of makeWindow; an empty one where none comes.
  xcb_client_message_event_t waitForMessage();

 private:
  xcb_window_t shownWindow(xcb_window_t other);
  bool isShown(xcb_window_t window);
  QRect placeOf(xcb_window_t window);
  xcb_atom_t atom(std::string_view name);
  void fake(std::uint8_t kind, std::uint8_t detail, QPoint place = {});
  // The key of a symbol, and whether it needs Shift.
  std::pair<xcb_keycode_t, bool> keyOf(xcb_keysym_t symbol);

  QProcess server_;
  std::string display_;
  xcb_connection_t* connection_ = nullptr;
  xcb_screen_t* screen_ = nullptr;
};

}  // namespace qor::test
