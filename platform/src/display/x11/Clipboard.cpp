#include "Clipboard.h"

#include "Connection.h"
#include "Text.h"
#include "Waker.h"
#include "graphics/Utf8.h"

namespace display::x11 {
namespace {

constexpr std::uint64_t kPatience = 1000;  // milliseconds, for the owner's answer or its next piece

}  // namespace

void Clipboard::Own(const std::wstring& text, xcb_timestamp_t time) {
  text_ = text;
  since_ = time;
  owned_ = true;
  xcb_set_selection_owner(connection_.Get(), connection_.Helper(), connection_[Atom::Clipboard],
                          time);
}

std::wstring Clipboard::Ask(xcb_timestamp_t time, const std::function<void(std::uint64_t)>& pump) {
  if (owned_) return text_;
  if (AskAs(connection_[Atom::Utf8String], time, pump)) return Widen(FromUtf8(reader_.Bytes()));
  if (reader_.WasRefused() && AskAs(XCB_ATOM_STRING, time, pump))
    return FromLatin1(reader_.Bytes());
  return {};
}

bool Clipboard::AskAs(xcb_atom_t type, xcb_timestamp_t time,
                      const std::function<void(std::uint64_t)>& pump) {
  if (reader_.IsOpen()) return false;
  reader_.Begin(connection_.Helper(), connection_[Atom::Clipboard], type, time);
  pump(0);
  std::size_t length = 0;
  for (auto deadline = Waker::Now() + kPatience; reader_.IsOpen() && Waker::Now() < deadline;) {
    pump(deadline);
    if (reader_.Bytes().size() != length) deadline = Waker::Now() + kPatience;
    length = reader_.Bytes().size();
  }
  if (reader_.IsOpen()) reader_.Abandon();
  return reader_.IsDone();
}

void Clipboard::Lost(const xcb_selection_clear_event_t& event) {
  if (event.selection != connection_[Atom::Clipboard]) return;
  owned_ = false;
  text_.clear();
}

void Clipboard::Requested(const xcb_selection_request_event_t& request) {
  const xcb_atom_t property = request.property ? request.property : request.target;
  xcb_selection_notify_event_t answer{};
  answer.response_type = XCB_SELECTION_NOTIFY;
  answer.time = request.time;
  answer.requestor = request.requestor;
  answer.selection = request.selection;
  answer.target = request.target;
  answer.property = owned_ && Write(request, property) ? property : xcb_atom_t{XCB_ATOM_NONE};
  xcb_send_event(connection_.Get(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                 reinterpret_cast<const char*>(&answer));
}

bool Clipboard::Write(const xcb_selection_request_event_t& request, xcb_atom_t property) {
  const xcb_atom_t utf8 = connection_[Atom::Utf8String];
  const xcb_atom_t targets = connection_[Atom::Targets];
  const xcb_atom_t timestamp = connection_[Atom::Timestamp];
  xcb_connection_t* c = connection_.Get();
  if (request.target == targets) {
    const xcb_atom_t offered[] = {targets, timestamp, utf8, XCB_ATOM_STRING};
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, request.requestor, property, XCB_ATOM_ATOM, 32,
                        std::size(offered), offered);
    return true;
  }
  if (request.target == timestamp) {
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, request.requestor, property, XCB_ATOM_INTEGER, 32,
                        1, &since_);
    return true;
  }
  if (request.target != utf8 && request.target != XCB_ATOM_STRING) return false;
  WriteText(request.requestor, property, request.target,
            request.target == utf8 ? ToUtf8(text_) : ToLatin1(text_));
  return true;
}

void Clipboard::WriteText(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                          std::string bytes) {
  if (bytes.size() > Pieces::kLength) {
    return pieces_.Begin(window, property, type, std::move(bytes));
  }
  xcb_change_property(connection_.Get(), XCB_PROP_MODE_REPLACE, window, property, type, 8,
                      static_cast<std::uint32_t>(bytes.size()), bytes.data());
}

void Clipboard::PropertyChanged(const xcb_property_notify_event_t& event) {
  reader_.PropertyChanged(event);
  pieces_.PropertyChanged(event);
}

}  // namespace display::x11
