// The owner's notice as an X11 client message. It has a connection of its own: the window's may
// already be closing.
#include "platform/system/owner_notice.h"

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace qor {

void notifyOwner(std::uint64_t window, std::uint32_t message, std::int32_t number) {
  const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
      xcb_connect(nullptr, nullptr), &xcb_disconnect);
  if (xcb_connection_has_error(connection.get()) != 0) return;
  const auto owner = static_cast<xcb_window_t>(window);
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = owner;
  event.type = message;
  event.data.data32[0] = static_cast<std::uint32_t>(number);
  event.data.data32[1] = owner;
  // With no event mask it goes to whoever made the window. Waiting for the answer makes sure that
  // it has gone out.
  const auto sent = xcb_send_event_checked(connection.get(), 0, owner, XCB_EVENT_MASK_NO_EVENT,
                                           reinterpret_cast<const char*>(&event));
  std::free(xcb_request_check(connection.get(), sent));
}

}  // namespace qor
