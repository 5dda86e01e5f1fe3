#pragma once

// Fetches what the owner of a selection offers: its text comes whole, or in pieces when it is long.

#include <xcb/xcb.h>

#include <string>

#include "Atoms.h"

namespace display::x11 {

class Connection;

class SelectionReader {
 public:
  // `property` is where the owners put the bytes; each reader has one of its own.
  SelectionReader(Connection& connection, Atom property)
      : connection_(connection), property_(property) {}

  // Asks for the selection as `type`, in the name of one of our windows. What was asked before is
  // dropped.
  void Begin(xcb_window_t window, xcb_atom_t selection, xcb_atom_t type, xcb_timestamp_t time);
  void Abandon() { state_ = State::None; }
  bool IsOpen() const { return state_ == State::Waiting || state_ == State::InPieces; }
  bool IsDone() const { return state_ == State::Done; }
  bool WasRefused() const { return state_ == State::Refused; }
  // What has come so far.
  const std::string& Bytes() const { return bytes_; }

  // Events that are not about this reader are passed over.
  void Answered(const xcb_selection_notify_event_t& answer);
  void PropertyChanged(const xcb_property_notify_event_t& event);

 private:
  enum class State { None, Waiting, InPieces, Done, Refused };

  Connection& connection_;
  Atom property_;
  xcb_window_t window_ = 0;
  xcb_atom_t selection_ = XCB_ATOM_NONE;
  State state_ = State::None;
  std::string bytes_;
};

}  // namespace display::x11
