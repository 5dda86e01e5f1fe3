#pragma once

// Files that the user drags here from other programs: the receiving end of the protocol XDND 5.

#include <xcb/xcb.h>

#include <string>
#include <vector>

#include "Selection.h"
#include "display/Display.h"

namespace display::x11 {

class Records;
class Surfaces;

class Xdnd {
 public:
  Xdnd(Connection& connection, const Surfaces& surfaces, Records& records)
      : connection_(connection), surfaces_(surfaces), records_(records) {}

  // Messages of other protocols are passed over, and those of a source that has not entered.
  void Received(const xcb_client_message_event_t& message);
  void Answered(const xcb_selection_notify_event_t& answer);
  void PropertyChanged(const xcb_property_notify_event_t& event);
  // Whether the place that the last record FilesDragged asked about takes files.
  void Answer(xcb_window_t window, bool taken);

 private:
  // What another program drags over one of our windows.
  struct Drag {
    xcb_window_t source = 0;
    xcb_window_t window = 0;
    bool hasFiles = false;
    POINT position{};
    bool isTaken = false;  // at this position
    bool isDropped = false;
  };

  void Enter(const xcb_client_message_event_t& message);
  void Move(const xcb_client_message_event_t& message);
  void Drop(const xcb_client_message_event_t& message);
  bool OffersFiles(const xcb_client_message_event_t& enter);
  void DeliverWhenHere();
  void End(bool taken);
  bool Report(Input::Kind kind, std::vector<std::wstring> files = {});
  std::uint32_t Action() const;

  Connection& connection_;
  const Surfaces& surfaces_;
  Records& records_;
  SelectionReader reader_{connection_, Atom::WexaDrop};
  Drag drag_;
};

}  // namespace display::x11
