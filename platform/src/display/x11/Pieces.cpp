#include "Pieces.h"

#include <algorithm>

#include "Connection.h"

namespace display::x11 {

void Pieces::Begin(xcb_window_t window, xcb_atom_t property, xcb_atom_t type, std::string&& bytes) {
  Listen(window, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
  const auto length = static_cast<std::uint32_t>(bytes.size());
  xcb_change_property(connection_.Get(), XCB_PROP_MODE_REPLACE, window, property,
                      connection_[Atom::Incr], 32, 1, &length);
  transfers_.push_back({window, property, type, std::move(bytes), 0});
}

// Who has taken a piece deletes the property.
void Pieces::PropertyChanged(const xcb_property_notify_event_t& event) {
  if (event.state != XCB_PROPERTY_DELETE) return;
  const auto found = std::ranges::find_if(transfers_, [&event](const Transfer& transfer) {
    return transfer.window == event.window && transfer.property == event.atom;
  });
  if (found == transfers_.end() || !WriteNext(*found)) return;
  transfers_.erase(found);
  if (std::ranges::find(transfers_, event.window, &Transfer::window) == transfers_.end()) {
    Listen(event.window, XCB_EVENT_MASK_NO_EVENT);
  }
}

bool Pieces::WriteNext(Transfer& transfer) {
  const std::size_t length = std::min(kLength, transfer.bytes.size() - transfer.done);
  xcb_change_property(connection_.Get(), XCB_PROP_MODE_REPLACE, transfer.window, transfer.property,
                      transfer.type, 8, static_cast<std::uint32_t>(length),
                      transfer.bytes.data() + transfer.done);
  transfer.done += length;
  return length == 0;
}

void Pieces::WindowGone(xcb_window_t window) {
  std::erase_if(transfers_,
                [window](const Transfer& transfer) { return transfer.window == window; });
}

void Pieces::Listen(xcb_window_t window, std::uint32_t events) {
  xcb_change_window_attributes(connection_.Get(), window, XCB_CW_EVENT_MASK, &events);
}

}  // namespace display::x11
