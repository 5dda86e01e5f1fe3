#pragma once

// The texts that programs exchange through the server's selection CLIPBOARD.

#include <xcb/xcb.h>

#include <cstdint>
#include <functional>
#include <string>

#include "Pieces.h"
#include "Selection.h"

namespace display::x11 {

class Clipboard {
 public:
  explicit Clipboard(Connection& connection) : connection_(connection) {}

  void Own(const std::wstring& text, xcb_timestamp_t time);
  // The text of whoever owns the clipboard; empty when there is none, or no answer in time.
  // `pump` sleeps until an event or the deadline given to it, and handles what has come.
  std::wstring Ask(xcb_timestamp_t time, const std::function<void(std::uint64_t)>& pump);

  void Requested(const xcb_selection_request_event_t& request);
  void Lost(const xcb_selection_clear_event_t& event);
  void Answered(const xcb_selection_notify_event_t& answer) { reader_.Answered(answer); }
  void PropertyChanged(const xcb_property_notify_event_t& event);
  void WindowGone(xcb_window_t window) { pieces_.WindowGone(window); }

 private:
  bool AskAs(xcb_atom_t type, xcb_timestamp_t time, const std::function<void(std::uint64_t)>& pump);
  bool Write(const xcb_selection_request_event_t& request, xcb_atom_t property);
  void WriteText(xcb_window_t window, xcb_atom_t property, xcb_atom_t type, std::string bytes);

  Connection& connection_;
  bool owned_ = false;
  xcb_timestamp_t since_ = XCB_CURRENT_TIME;
  std::wstring text_;
  Pieces pieces_{connection_};
  SelectionReader reader_{connection_, Atom::WexaSelection};
};

}  // namespace display::x11
