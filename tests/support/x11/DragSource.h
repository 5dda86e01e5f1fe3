#pragma once

// A program that lets the user drag something out of it, over a window of another program.

#include <optional>
#include <string>
#include <vector>

#include "support/x11/XTestDriver.h"

namespace support {

class DragSource {
 public:
  using Words = XTestDriver::Words;

  // Events that come to `driver` are this object's.
  DragSource(XTestDriver& driver, xcb_window_t target);
  xcb_window_t Window() const { return window_; }

  void Enter(const std::vector<const char*>& types);
  void Move(POINT position);
  void Leave() { Send("XdndLeave", {window_}); }
  void Drop() { Send("XdndDrop", {window_, 0, XCB_CURRENT_TIME}); }
  void Send(const char* message, const Words& data, std::uint8_t format = 32);
  // The data of the target's last answer of this kind; none if none.
  std::optional<Words> Take(const char* message);

  // These answer a target that asks for what is dragged; false when none has asked.
  bool Give(const std::string& bytes);
  bool Refuse();
  // Says that the bytes come in pieces. The first may be given at once, each of the others when the
  // one before has been taken; an empty one is the end.
  bool BeginPieces();
  void GivePiece(const std::string& bytes);

 private:
  using Request = xcb_selection_request_event_t;

  void Write(const Request& request, const std::string& bytes);
  bool Answer(const std::function<xcb_atom_t(const Request&)>& give);

  XTestDriver& driver_;
  xcb_connection_t* c_;
  xcb_window_t target_;
  xcb_window_t window_;
  Request pieces_{};
};

}  // namespace support
