// The X display as a stopwatch needs it: windows, pixels and faked keys.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <ranges>
#include <span>
#include <stdexcept>
#include <vector>

#include <sys/shm.h>
#include <xcb/shm.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

using Failure = std::runtime_error;
using Keys = std::vector<xcb_keycode_t>;

inline constexpr size_t kRowStep = 5;  // no readable letters are lower

struct Freer {
  void operator()(void* memory) const { std::free(memory); }
};

template <class T>
using Owned = std::unique_ptr<T, Freer>;

template <class T>
Owned<T> answer(T* reply) {
  if (!reply) throw Failure("the X server refused a request or is gone");
  return Owned<T>(reply);
}

/// Memory that the X server writes pixels into; none where it can't.
class SharedPixels {
 public:
  SharedPixels(xcb_connection_t* connection, size_t bytes) : segment(xcb_generate_id(connection)) {
    const int id = shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
    if (id < 0) return;
    const auto asked = xcb_shm_attach_checked(connection, segment, static_cast<uint32_t>(id), 0);
    const Owned<xcb_generic_error_t> error(xcb_request_check(connection, asked));
    void* memory = error ? nullptr : shmat(id, nullptr, SHM_RDONLY);
    if (memory != reinterpret_cast<void*>(-1)) pixels_.reset(static_cast<uint32_t*>(memory));
    shmctl(id, IPC_RMID, nullptr);
  }
  const uint32_t* get() const { return pixels_.get(); }

  const xcb_shm_seg_t segment;

 private:
  struct Detacher {
    void operator()(void* memory) const { shmdt(memory); }
  };
  std::unique_ptr<uint32_t, Detacher> pixels_;
};

/// Every kRowStep-th row of a part of the screen.
using Picture = std::vector<std::vector<uint32_t>>;

using Area = xcb_rectangle_t;

struct Window {
  xcb_window_t id = XCB_NONE;
  Area area{};
};

class Display {
 public:
  Display() {
    if (xcb_connection_has_error(c_)) throw Failure("no X display answers");
    screen_ = xcb_setup_roots_iterator(xcb_get_setup(c_)).data;
    if (screen_->root_depth != 24) throw Failure("the X display must have 24 bits a pixel");
    shared_ = std::make_unique<SharedPixels>(
        c_, size_t{4} * screen_->width_in_pixels * screen_->height_in_pixels);
  }

  /// The topmost window that is no menu and no helper of a toolkit.
  Window window() {
    const auto tree = answer(xcb_query_tree_reply(c_, xcb_query_tree(c_, screen_->root), nullptr));
    const std::span children(xcb_query_tree_children(tree.get()), tree->children_len);
    for (const auto child : children | std::views::reverse) {
      if (const Area area = shownArea(child); area.width >= 300 && area.height >= 200) {
        return {child, area};
      }
    }
    return {};
  }

  /// What stands in the middle of the window, where the page is and no bar. It is read from the
  /// root window, which is always there.
  Picture centre(const Area& window) {
    const int left = std::max(window.x + window.width / 8, 0);
    const int top = std::max(window.y + window.height / 8, 0);
    const int right = std::min(window.x + window.width * 7 / 8, int{screen_->width_in_pixels});
    const int bottom = std::min(window.y + window.height * 7 / 8, int{screen_->height_in_pixels});
    return picture({static_cast<int16_t>(left), static_cast<int16_t>(top),
                    static_cast<uint16_t>(std::max(right - left, 1)),
                    static_cast<uint16_t>(std::max(bottom - top, 1))});
  }

  void focus(xcb_window_t window) {
    xcb_set_input_focus(c_, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    xcb_flush(c_);
  }

  /// Moves the window to the corner of the screen and the pointer to the middle of the window.
  void place(xcb_window_t window, const Area& area) {
    const auto values = std::to_array<uint32_t>({0, 0, area.width, area.height});
    constexpr int kWhat = XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                          XCB_CONFIG_WINDOW_HEIGHT;
    xcb_configure_window(c_, window, kWhat, values.data());
    xcb_warp_pointer(c_, XCB_NONE, screen_->root, 0, 0, 0, 0, static_cast<int16_t>(area.width / 2),
                     static_cast<int16_t>(area.height / 2));
    xcb_flush(c_);
  }

  xcb_keycode_t keycode(uint32_t keysym) {
    const xcb_setup_t* setup = xcb_get_setup(c_);
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto map = answer(xcb_get_keyboard_mapping_reply(
        c_, xcb_get_keyboard_mapping(c_, setup->min_keycode, count), nullptr));
    const xcb_keysym_t* keysyms = xcb_get_keyboard_mapping_keysyms(map.get());
    for (int i = 0; i < count; ++i) {
      if (keysyms[i * map->keysyms_per_keycode] != keysym) continue;
      return static_cast<xcb_keycode_t>(setup->min_keycode + i);
    }
    throw Failure("the keyboard has no such key");
  }

  /// Presses the keys in this order and releases them in reverse.
  void press(const Keys& keys) {
    for (const auto key : keys) fake(XCB_KEY_PRESS, key);
    for (const auto key : keys | std::views::reverse) fake(XCB_KEY_RELEASE, key);
    xcb_flush(c_);
  }

 private:
  struct Disconnecter {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
  };

  /// Windows come and go at any time, so no answer is no failure.
  Area shownArea(xcb_window_t window) {
    const auto askedState = xcb_get_window_attributes(c_, window);
    const auto askedArea = xcb_get_geometry(c_, window);
    const Owned<xcb_get_window_attributes_reply_t> state(
        xcb_get_window_attributes_reply(c_, askedState, nullptr));
    const Owned<xcb_get_geometry_reply_t> area(xcb_get_geometry_reply(c_, askedArea, nullptr));
    if (!state || !area || state->override_redirect) return {};
    if (state->map_state != XCB_MAP_STATE_VIEWABLE) return {};
    return {area->x, area->y, area->width, area->height};
  }

  /// One request for all costs less than one for each row, and nothing is painted in between.
  Picture picture(const Area& area) {
    const auto [x, y, width, height] = area;
    constexpr uint8_t kFormat = XCB_IMAGE_FORMAT_Z_PIXMAP;
    if (shared_->get()) {
      const auto asked = xcb_shm_get_image(c_, screen_->root, x, y, width, height, ~0u, kFormat,
                                           shared_->segment, 0);
      answer(xcb_shm_get_image_reply(c_, asked, nullptr));
      return someRows(area, shared_->get());
    }
    const auto asked = xcb_get_image(c_, kFormat, screen_->root, x, y, width, height, ~0u);
    const auto image = answer(xcb_get_image_reply(c_, asked, nullptr));
    return someRows(area, reinterpret_cast<const uint32_t*>(xcb_get_image_data(image.get())));
  }

  static Picture someRows(const Area& area, const uint32_t* pixels) {
    Picture rows;
    for (size_t y = 0; y < area.height; y += kRowStep) {
      const uint32_t* row = pixels + y * area.width;
      rows.emplace_back(row, row + area.width);
    }
    return rows;
  }

  void fake(uint8_t type, xcb_keycode_t key) {
    xcb_test_fake_input(c_, type, key, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
  }

  std::unique_ptr<xcb_connection_t, Disconnecter> connection_{xcb_connect(nullptr, nullptr)};
  xcb_connection_t* const c_ = connection_.get();
  xcb_screen_t* screen_ = nullptr;
  std::unique_ptr<SharedPixels> shared_;
};
