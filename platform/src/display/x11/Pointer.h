#pragma once

// Pointer events to records, and the capture of the pointer.

#include <xcb/xcb.h>

#include <optional>

#include "Records.h"

namespace display::x11 {

class Connection;

class Pointer {
 public:
  explicit Pointer(Connection& connection) : connection_(connection) {}

  std::optional<Record> Button(const xcb_button_press_event_t& event, bool down);
  Record Motion(const xcb_motion_notify_event_t& event);
  Record Enter(const xcb_enter_notify_event_t& event);
  // None while the pointer is captured: it stays with its surface then.
  std::optional<Record> Leave(const xcb_leave_notify_event_t& event);

  void Grab(xcb_window_t window);
  void Ungrab();
  // The window that captured the pointer, else 0.
  xcb_window_t Grabber() const { return grabber_; }

  struct Reading {
    POINT position{};
    std::uint16_t held = 0;
  };
  // Where the pointer is and what is held now; asks the server.
  Reading Ask() const;

 private:
  Connection& connection_;
  xcb_window_t grabber_ = 0;
};

}  // namespace display::x11
