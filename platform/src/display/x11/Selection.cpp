#include "Selection.h"

#include "Connection.h"

namespace display::x11 {

void SelectionReader::Begin(xcb_window_t window, xcb_atom_t selection, xcb_atom_t type,
                            xcb_timestamp_t time) {
  window_ = window;
  selection_ = selection;
  state_ = State::Waiting;
  bytes_.clear();
  xcb_delete_property(connection_.Get(), window, connection_[property_]);
  xcb_convert_selection(connection_.Get(), window, selection, type, connection_[property_], time);
}

void SelectionReader::Answered(const xcb_selection_notify_event_t& answer) {
  if (state_ != State::Waiting || answer.requestor != window_ || answer.selection != selection_) {
    return;
  }
  state_ = State::Refused;
  if (answer.property != connection_[property_]) return;
  xcb_atom_t type = XCB_ATOM_NONE;
  bytes_ = connection_.ReadProperty(window_, answer.property, true, &type);
  state_ = State::Done;
  if (type != connection_[Atom::Incr]) return;
  state_ = State::InPieces;
  bytes_.clear();
}

// Each piece comes after the one before was taken; an empty one is the end.
void SelectionReader::PropertyChanged(const xcb_property_notify_event_t& event) {
  if (state_ != State::InPieces || event.state != XCB_PROPERTY_NEW_VALUE ||
      event.window != window_ || event.atom != connection_[property_]) {
    return;
  }
  const std::string piece = connection_.ReadProperty(window_, event.atom, true);
  if (piece.empty()) state_ = State::Done;
  bytes_ += piece;
}

}  // namespace display::x11
