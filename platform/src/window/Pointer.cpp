#include "window/Pointer.h"

#include "platform/VirtualKeys.h"
#include "window/Activation.h"
#include "window/Capture.h"
#include "window/Clicks.h"
#include "window/Coordinates.h"
#include "window/Cursor.h"
#include "window/Dispatch.h"
#include "window/Focus.h"
#include "window/Frame.h"
#include "window/FrameTracking.h"
#include "window/HitTest.h"
#include "window/KeyState.h"
#include "window/Keyboard.h"
#include "window/MouseTracking.h"
#include "window/Session.h"

namespace core {
namespace {

using display::Input;
using display::MouseButton;

HWND& HoveredRoot() {
  return CurrentSession().hoveredRoot;
}

int KeyOf(MouseButton button) {
  switch (button) {
    case MouseButton::Left: return VK_LBUTTON;
    case MouseButton::Right: return VK_RBUTTON;
    case MouseButton::Middle: return VK_MBUTTON;
    case MouseButton::Extra1: return VK_XBUTTON1;
    default: return VK_XBUTTON2;
  }
}

// The down message of a button; up and double click follow it.
UINT DownMessage(MouseButton button) {
  switch (button) {
    case MouseButton::Left: return WM_LBUTTONDOWN;
    case MouseButton::Right: return WM_RBUTTONDOWN;
    case MouseButton::Middle: return WM_MBUTTONDOWN;
    default: return WM_XBUTTONDOWN;
  }
}

UINT ClientMessage(const Input& input, const Hit& hit) {
  if (input.kind == Input::Kind::PointerMoved) return WM_MOUSEMOVE;
  const UINT down = DownMessage(input.button);
  if (input.kind == Input::Kind::ButtonUp) return down + 1;
  return NoteClick(*hit.window, input) ? down + 2 : down;
}

// Only the left button means something on a frame; 0 for the others.
UINT FrameMessage(const Input& input, const Hit& hit) {
  if (input.kind == Input::Kind::PointerMoved) return WM_NCMOUSEMOVE;
  if (input.button != MouseButton::Left) return 0;
  if (input.kind == Input::Kind::ButtonUp) return WM_NCLBUTTONUP;
  return NoteClick(*hit.window, input) ? WM_NCLBUTTONDBLCLK : WM_NCLBUTTONDOWN;
}

WPARAM ButtonWord(const Input& input) {
  const bool isMove = input.kind == Input::Kind::PointerMoved;
  if (isMove || (input.button != MouseButton::Extra1 && input.button != MouseButton::Extra2))
    return MouseKeys();
  return MAKEWPARAM(static_cast<int>(MouseKeys()), input.button == MouseButton::Extra1 ? 1 : 2);
}

MSG ClientMouse(const Input& input, const Hit& hit) {
  const POINT p = ToClient(*hit.window, input.position);
  return {hit.window->handle, ClientMessage(input, hit),
          ButtonWord(input),  MAKELPARAM(p.x, p.y),
          input.time,         input.position};
}

std::optional<MSG> FrameMouse(const Input& input, const Hit& hit) {
  const UINT message = FrameMessage(input, hit);
  if (!message) return std::nullopt;
  return MSG{hit.window->handle,
             message,
             static_cast<WPARAM>(hit.part),
             MAKELPARAM(input.position.x, input.position.y),
             input.time,
             input.position};
}

Hit Target(Window& root, POINT screen) {
  if (Window* captured = CapturingWindow()) return {captured, HTCLIENT};
  return HitTest(root, screen);
}

void NoteHover(const Hit& hit, POINT screen) {
  NotePointerOver(hit.window && hit.part == HTCLIENT ? hit.window : nullptr, screen);
  Window* root = hit.window && hit.window->top ? hit.window : nullptr;
  Window* before = Find(HoveredRoot());
  if (before && before != root) SetHoveredPart(*before, FramePart::None);
  HoveredRoot() = root ? root->handle : nullptr;
  if (root) SetHoveredPart(*root, hit.part == HTCLOSE ? FramePart::Close : FramePart::None);
}

// A press activates the window unless it declines. False: the press is used up.
bool ActivateByPress(const Hit& hit, UINT message) {
  Window& root = Root(*hit.window);
  if (ActiveWindow() == &root || !CanActivate(root)) return true;
  Hold holdRoot(&root);
  Hold hold(hit.window);
  const LRESULT answer = Send(*hit.window, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(root.handle),
                              MAKELPARAM(hit.part, static_cast<int>(message)));
  const bool activates = answer == MA_ACTIVATE || answer == MA_ACTIVATEANDEAT || answer == 0;
  if (activates && holdRoot.Alive()) Activate(&root, WA_CLICKACTIVE);
  return hold.Alive() && answer != MA_ACTIVATEANDEAT && answer != MA_NOACTIVATEANDEAT;
}

bool IsPress(const Input& input) {
  return input.kind == Input::Kind::ButtonDown;
}

// Clicks on a window behind its modal dialog go to the dialog.
std::optional<MSG> RefuseDisabled(Window& root, const Input& input) {
  Window* popUp = IsPress(input) ? EnabledPopUp(root) : nullptr;
  NoteHover({}, input.position);
  if (popUp) Activate(popUp, WA_ACTIVE);
  return std::nullopt;
}

std::optional<MSG> WheelMessage(const Input& input) {
  const Window* target = FocusedWindow();
  if (!target) return std::nullopt;
  const UINT message = input.horizontalWheel ? WM_MOUSEHWHEEL : WM_MOUSEWHEEL;
  return MSG{target->handle,
             message,
             MAKEWPARAM(static_cast<int>(MouseKeys()), input.wheelDelta),
             MAKELPARAM(input.position.x, input.position.y),
             input.time,
             input.position};
}

std::optional<MSG> MouseMessage(Window& root, const Input& input) {
  const Hit hit = Target(root, input.position);
  if (!root.alive || !hit.window) return std::nullopt;
  Hold hold(hit.window);
  NoteHover(hit, input.position);
  const UINT kind = IsPress(input) ? DownMessage(input.button) : WM_MOUSEMOVE;
  if (!CapturingWindow()) {
    AskForCursor(hit, kind);
    if (hold.Alive() && IsPress(input) && !ActivateByPress(hit, kind)) return std::nullopt;
  }
  if (!hold.Alive()) return std::nullopt;
  if (hit.part == HTCLIENT) return ClientMouse(input, hit);
  return FrameMouse(input, hit);
}

}  // namespace

std::optional<MSG> PointerMessage(const Input& input) {
  NoteMouseUsed();
  const bool isButton = IsPress(input) || input.kind == Input::Kind::ButtonUp;
  if (isButton) SetKeyDown(KeyOf(input.button), IsPress(input));
  if (input.kind == Input::Kind::Wheel) return WheelMessage(input);
  if (IsFrameTracked()) {
    TrackFrame(input);
    return std::nullopt;
  }
  Window* root = FindBySurface(input.surface);
  if (!root && CapturingWindow()) root = &Root(*CapturingWindow());
  if (!root) return std::nullopt;
  Hold hold(root);
  if (!CapturingWindow() && !root->IsEnabled()) return RefuseDisabled(*root, input);
  return MouseMessage(*root, input);
}

void PointerLeft(display::SurfaceId) {
  POINT place{};
  GetCursorPos(&place);
  if (!CapturingWindow()) NoteHover({}, place);
}

void ForgetPointer(const Window& window) {
  if (HoveredRoot() == window.handle) HoveredRoot() = nullptr;
  ForgetClick(window);
}

}  // namespace core

BOOL GetCursorPos(POINT* point) {
  if (!point) return FALSE;
  *point = display::Current().PointerPosition();
  return TRUE;
}
