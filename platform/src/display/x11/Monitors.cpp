#include "Monitors.h"

#include <xcb/randr.h>

#include "Connection.h"

namespace display::x11 {
namespace {

Owned<xcb_randr_get_monitors_reply_t> AskMonitors(Connection& connection) {
  xcb_connection_t* c = connection.Get();
  const auto* extension = xcb_get_extension_data(c, &xcb_randr_id);
  if (!extension || !extension->present) return nullptr;
  const auto cookie = xcb_randr_get_monitors(c, connection.Root(), 1);
  return Own(xcb_randr_get_monitors_reply(c, cookie, nullptr));
}

RECT PlaceOf(const xcb_randr_monitor_info_t& monitor) {
  return {monitor.x, monitor.y, monitor.x + monitor.width, monitor.y + monitor.height};
}

}  // namespace

RECT PrimaryMonitor(Connection& connection) {
  const RECT screen{0, 0, connection.Screen().width_in_pixels,
                    connection.Screen().height_in_pixels};
  const auto reply = AskMonitors(connection);
  if (!reply) return screen;
  auto monitors = xcb_randr_get_monitors_monitors_iterator(reply.get());
  RECT found = monitors.rem ? PlaceOf(*monitors.data) : screen;
  for (; monitors.rem; xcb_randr_monitor_info_next(&monitors)) {
    if (monitors.data->primary) found = PlaceOf(*monitors.data);
  }
  return found;
}

}  // namespace display::x11
