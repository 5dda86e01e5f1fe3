#pragma once

// Long texts on their way to other programs, which take them piece by piece.

#include <xcb/xcb.h>

#include <string>
#include <vector>

namespace display::x11 {

class Connection;

class Pieces {
 public:
  static constexpr std::size_t kLength = 0x40000;  // of a piece; more does not go at once

  explicit Pieces(Connection& connection) : connection_(connection) {}

  // Puts the bytes into a property of the other program's window, a piece each time that the one
  // before was taken.
  void Begin(xcb_window_t window, xcb_atom_t property, xcb_atom_t type, std::string&& bytes);

  // Events about other windows are passed over.
  void PropertyChanged(const xcb_property_notify_event_t& event);
  void WindowGone(xcb_window_t window);

 private:
  struct Transfer {
    xcb_window_t window;
    xcb_atom_t property;
    xcb_atom_t type;
    std::string bytes;
    std::size_t done;
  };

  void Listen(xcb_window_t window, std::uint32_t events);
  // True for the empty piece at the end.
  bool WriteNext(Transfer& transfer);

  Connection& connection_;
  std::vector<Transfer> transfers_;
};

}  // namespace display::x11
