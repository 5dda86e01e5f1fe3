#include "Pointer.h"

#include "Connection.h"

namespace display::x11 {
namespace {

constexpr int kNotch = 120;

enum ServerButton { kLeft = 1, kMiddle, kRight, kUp, kDown, kToLeft, kToRight, kBack, kForward };

template <typename Event>
Record MakeRecord(Input::Kind kind, const Event& event) {
  Record record;
  record.input.kind = kind;
  record.input.position = {event.root_x, event.root_y};
  record.held = event.state;
  return record;
}

bool IsWheel(int button) {
  return button >= kUp && button <= kToRight;
}

MouseButton ButtonOf(int button) {
  switch (button) {
    case kMiddle: return MouseButton::Middle;
    case kRight: return MouseButton::Right;
    case kBack: return MouseButton::Extra1;
    case kForward: return MouseButton::Extra2;
    default: return MouseButton::Left;
  }
}

Record WheelRecord(const xcb_button_press_event_t& event) {
  Record record = MakeRecord(Input::Kind::Wheel, event);
  const int button = event.detail;
  record.input.wheelDelta = button == kUp || button == kToRight ? kNotch : -kNotch;
  record.input.horizontalWheel = button == kToLeft || button == kToRight;
  return record;
}

}  // namespace

// A notch of the wheel comes as a button pressed and released.
std::optional<Record> Pointer::Button(const xcb_button_press_event_t& event, bool down) {
  if (event.detail < kLeft || event.detail > kForward) return std::nullopt;
  if (IsWheel(event.detail)) return down ? std::optional(WheelRecord(event)) : std::nullopt;
  Record record = MakeRecord(down ? Input::Kind::ButtonDown : Input::Kind::ButtonUp, event);
  record.input.button = ButtonOf(event.detail);
  return record;
}

Record Pointer::Motion(const xcb_motion_notify_event_t& event) {
  return MakeRecord(Input::Kind::PointerMoved, event);
}

Record Pointer::Enter(const xcb_enter_notify_event_t& event) {
  return MakeRecord(Input::Kind::PointerMoved, event);
}

std::optional<Record> Pointer::Leave(const xcb_leave_notify_event_t& event) {
  if (event.event == grabber_) return std::nullopt;
  return MakeRecord(Input::Kind::PointerLeft, event);
}

void Pointer::Grab(xcb_window_t window) {
  constexpr std::uint16_t kEvents = XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                                    XCB_EVENT_MASK_POINTER_MOTION | XCB_EVENT_MASK_ENTER_WINDOW |
                                    XCB_EVENT_MASK_LEAVE_WINDOW;
  xcb_connection_t* c = connection_.Get();
  const auto cookie = xcb_grab_pointer(c, 0, window, kEvents, XCB_GRAB_MODE_ASYNC,
                                       XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
  xcb_discard_reply(c, cookie.sequence);
  grabber_ = window;
}

void Pointer::Ungrab() {
  if (!grabber_) return;
  grabber_ = 0;
  xcb_ungrab_pointer(connection_.Get(), XCB_CURRENT_TIME);
}

Pointer::Reading Pointer::Ask() const {
  xcb_connection_t* c = connection_.Get();
  const auto cookie = xcb_query_pointer(c, connection_.Root());
  const auto reply = Own(xcb_query_pointer_reply(c, cookie, nullptr));
  if (!reply) return {};
  return {{reply->root_x, reply->root_y}, reply->mask};
}

}  // namespace display::x11
