#include "Router.h"

#include "Clipboard.h"
#include "Connection.h"
#include "Keyboard.h"
#include "Pointer.h"
#include "Resolution.h"
#include "Surfaces.h"
#include "Waker.h"
#include "WindowManager.h"
#include "XSettings.h"
#include "Xdnd.h"

namespace display::x11 {
namespace {

template <typename Event>
const Event& As(const xcb_generic_event_t& event) {
  return reinterpret_cast<const Event&>(event);
}

// A grab of the keyboard, or the pointer lying in the window, is no change of the focus.
bool IsRealFocusChange(const xcb_focus_in_event_t& event) {
  return event.mode != XCB_NOTIFY_MODE_GRAB && event.mode != XCB_NOTIFY_MODE_UNGRAB &&
         event.detail != XCB_NOTIFY_DETAIL_POINTER && event.detail != XCB_NOTIFY_DETAIL_INFERIOR;
}

}  // namespace

void Router::Route(const xcb_generic_event_t& event) {
  switch (event.response_type & 0x7F) {
    case XCB_KEY_PRESS: return OnKey(As<xcb_key_press_event_t>(event), true);
    case XCB_KEY_RELEASE: return OnKey(As<xcb_key_press_event_t>(event), false);
    case XCB_BUTTON_PRESS: return OnButton(As<xcb_button_press_event_t>(event), true);
    case XCB_BUTTON_RELEASE: return OnButton(As<xcb_button_press_event_t>(event), false);
    case XCB_MOTION_NOTIFY: return OnMotion(As<xcb_motion_notify_event_t>(event));
    case XCB_ENTER_NOTIFY: return OnEnter(As<xcb_enter_notify_event_t>(event));
    case XCB_LEAVE_NOTIFY: return OnLeave(As<xcb_leave_notify_event_t>(event));
    case XCB_FOCUS_IN: return OnFocus(As<xcb_focus_in_event_t>(event), true);
    case XCB_FOCUS_OUT: return OnFocus(As<xcb_focus_in_event_t>(event), false);
    case XCB_KEYMAP_NOTIFY: return parts_.keyboard.TakeHeld(As<xcb_keymap_notify_event_t>(event));
    case XCB_EXPOSE: return OnExpose(As<xcb_expose_event_t>(event));
    case XCB_CONFIGURE_NOTIFY:
      return OnConfigure(As<xcb_configure_notify_event_t>(event), event.full_sequence);
    case XCB_DESTROY_NOTIFY:
      return parts_.clipboard.WindowGone(As<xcb_destroy_notify_event_t>(event).window);
    case XCB_REPARENT_NOTIFY: return OnReparent(As<xcb_reparent_notify_event_t>(event));
    case XCB_CLIENT_MESSAGE: return OnClientMessage(As<xcb_client_message_event_t>(event));
    case XCB_PROPERTY_NOTIFY: return OnProperty(As<xcb_property_notify_event_t>(event));
    case XCB_SELECTION_REQUEST:
      return parts_.clipboard.Requested(As<xcb_selection_request_event_t>(event));
    case XCB_SELECTION_CLEAR: return parts_.clipboard.Lost(As<xcb_selection_clear_event_t>(event));
    case XCB_SELECTION_NOTIFY: return OnSelection(As<xcb_selection_notify_event_t>(event));
    default: parts_.keyboard.Handle(event);
  }
}

void Router::OnKey(const xcb_key_press_event_t& event, bool down) {
  auto input = down ? parts_.keyboard.Press(event) : parts_.keyboard.Release(event);
  if (!input || (!input->virtualKey && input->text.empty())) return;
  input->position = {event.root_x, event.root_y};
  Report({std::move(*input), event.state}, event.event, event.time);
}

void Router::OnButton(const xcb_button_press_event_t& event, bool down) {
  if (auto record = parts_.pointer.Button(event, down)) Report(*record, event.event, event.time);
}

void Router::OnMotion(const xcb_motion_notify_event_t& event) {
  Report(parts_.pointer.Motion(event), event.event, event.time);
}

void Router::OnEnter(const xcb_enter_notify_event_t& event) {
  Report(parts_.pointer.Enter(event), event.event, event.time);
}

void Router::OnLeave(const xcb_leave_notify_event_t& event) {
  if (auto record = parts_.pointer.Leave(event)) Report(*record, event.event, event.time);
}

void Router::OnFocus(const xcb_focus_in_event_t& event, bool in) {
  const Surface* surface = parts_.surfaces.FindWindow(event.event);
  if (!surface || !IsRealFocusChange(event)) return;
  if (!in) parts_.keyboard.FocusLost();
  Report(in ? Input::Kind::FocusIn : Input::Kind::FocusOut, surface->Id());
}

// The pixels are here: showing them again takes no painting.
void Router::OnExpose(const xcb_expose_event_t& event) {
  Surface* surface = parts_.surfaces.FindWindow(event.window);
  if (!surface) return;
  const RECT area{event.x, event.y, event.x + event.width, event.y + event.height};
  if (surface->Image().IsPainted()) return surface->Image().Present(surface->Window(), area);
  Input input{};
  input.kind = Input::Kind::Exposed;
  input.surface = surface->Id();
  input.area = area;
  parts_.records.Push({std::move(input), std::nullopt});
}

void Router::OnConfigure(const xcb_configure_notify_event_t& event, unsigned sequence) {
  if (event.window == parts_.connection.Root()) return parts_.windowManager.ScreenChanged();
  Surface* surface = parts_.surfaces.FindWindow(event.window);
  if (!surface) return;
  const RECT old = surface->Place();
  const SIZE oldSize = surface->Size();
  if (!surface->Accept(event, sequence)) return;
  Input input{};
  input.surface = surface->Id();
  input.position = {surface->Place().left, surface->Place().top};
  input.size = surface->Size();
  input.time = static_cast<std::uint32_t>(Waker::Now());
  if (input.position.x != old.left || input.position.y != old.top) {
    input.kind = Input::Kind::Moved;
    parts_.records.Push({input, std::nullopt});
  }
  if (input.size.cx != oldSize.cx || input.size.cy != oldSize.cy) {
    input.kind = Input::Kind::Resized;
    parts_.records.Push({std::move(input), std::nullopt});
  }
}

void Router::OnReparent(const xcb_reparent_notify_event_t& event) {
  if (Surface* surface = parts_.surfaces.FindWindow(event.window)) {
    surface->Reparented(event.parent);
  }
}

void Router::OnClientMessage(const xcb_client_message_event_t& event) {
  const Connection& atoms = parts_.connection;
  if (event.format != 32) return;
  parts_.xdnd.Received(event);
  if (parts_.settings.ManagerCame(event)) Report(Input::Kind::ColorsChanged);
  if (event.type != atoms[Atom::WmProtocols]) return;
  const xcb_atom_t protocol = event.data.data32[0];
  if (protocol == atoms[Atom::NetWmPing]) parts_.windowManager.AnswerPing(event);
  const Surface* surface = parts_.surfaces.FindWindow(event.window);
  if (surface && protocol == atoms[Atom::WmDeleteWindow]) {
    Report(Input::Kind::CloseRequested, surface->Id());
  }
}

void Router::OnSelection(const xcb_selection_notify_event_t& event) {
  parts_.clipboard.Answered(event);
  parts_.xdnd.Answered(event);
}

void Router::OnProperty(const xcb_property_notify_event_t& event) {
  if (event.window == parts_.connection.Root()) return OnRootProperty(event.atom);
  parts_.clipboard.PropertyChanged(event);
  parts_.xdnd.PropertyChanged(event);
  if (parts_.settings.PropertyChanged(event)) Report(Input::Kind::ColorsChanged);
}

void Router::OnRootProperty(xcb_atom_t property) {
  parts_.windowManager.RootPropertyChanged(property);
  if (property != XCB_ATOM_RESOURCE_MANAGER || !parts_.resolution.Refresh()) return;
  Input input{};
  input.kind = Input::Kind::ResolutionChanged;
  input.dpi = parts_.resolution.Dpi();
  input.time = static_cast<std::uint32_t>(Waker::Now());
  parts_.records.Push({std::move(input), std::nullopt});
}

void Router::Report(Input::Kind kind, SurfaceId surface) {
  Input input{};
  input.kind = kind;
  input.surface = surface;
  input.time = static_cast<std::uint32_t>(Waker::Now());
  parts_.records.Push({std::move(input), std::nullopt});
}

void Router::Report(Record record, xcb_window_t window, xcb_timestamp_t time) {
  const Surface* surface = parts_.surfaces.FindWindow(window);
  if (!surface) return;
  lastTime_ = time;
  record.input.surface = surface->Id();
  record.input.time = ClockTime(time);
  parts_.records.Push(std::move(record));
}

std::uint32_t Router::ClockTime(xcb_timestamp_t time) {
  if (!clockOffset_) clockOffset_ = static_cast<std::uint32_t>(Waker::Now()) - time;
  return time + *clockOffset_;
}

}  // namespace display::x11
