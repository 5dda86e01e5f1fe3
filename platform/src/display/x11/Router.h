#pragma once

// Every event of the server goes through here, to the part that knows it; what the user or the
// desktop did comes out as records.

#include <xcb/xcb.h>

#include <optional>

#include "Records.h"

namespace display::x11 {

class Clipboard;
class Connection;
class Keyboard;
class Pointer;
class Resolution;
class Surface;
class Surfaces;
class WindowManager;
class XSettings;
class Xdnd;

struct Parts {
  Connection& connection;
  Surfaces& surfaces;
  Keyboard& keyboard;
  Pointer& pointer;
  Clipboard& clipboard;
  Resolution& resolution;
  WindowManager& windowManager;
  Xdnd& xdnd;
  XSettings& settings;
  Records& records;
};

class Router {
 public:
  explicit Router(const Parts& parts) : parts_(parts) {}

  void Route(const xcb_generic_event_t& event);
  // The server's time of the last event of the user.
  xcb_timestamp_t LastTime() const { return lastTime_; }

 private:
  void OnKey(const xcb_key_press_event_t& event, bool down);
  void OnButton(const xcb_button_press_event_t& event, bool down);
  void OnMotion(const xcb_motion_notify_event_t& event);
  void OnEnter(const xcb_enter_notify_event_t& event);
  void OnLeave(const xcb_leave_notify_event_t& event);
  void OnFocus(const xcb_focus_in_event_t& event, bool in);
  void OnExpose(const xcb_expose_event_t& event);
  void OnConfigure(const xcb_configure_notify_event_t& event, unsigned sequence);
  void OnReparent(const xcb_reparent_notify_event_t& event);
  void OnClientMessage(const xcb_client_message_event_t& event);
  void OnSelection(const xcb_selection_notify_event_t& event);
  void OnProperty(const xcb_property_notify_event_t& event);
  void OnRootProperty(xcb_atom_t property);

  void Report(Input::Kind kind, SurfaceId surface = 0);
  void Report(Record record, xcb_window_t window, xcb_timestamp_t time);
  std::uint32_t ClockTime(xcb_timestamp_t time);

  Parts parts_;
  xcb_timestamp_t lastTime_ = XCB_CURRENT_TIME;
  std::optional<std::uint32_t> clockOffset_;  // from the server's time to our clock
};

}  // namespace display::x11
