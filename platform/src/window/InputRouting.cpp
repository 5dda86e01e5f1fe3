#include "window/InputRouting.h"

#include <utility>

#include "platform/SystemColors.h"
#include "window/Activation.h"
#include "window/Dispatch.h"
#include "window/DropFiles.h"
#include "window/KeyState.h"
#include "window/Keyboard.h"
#include "window/Pointer.h"
#include "window/Position.h"
#include "window/Queue.h"
#include "window/Session.h"
#include "window/TopLevelSurface.h"
#include "window/Updates.h"

namespace core {
namespace {

using display::Input;
using Kind = display::Input::Kind;

void SendToAll(UINT message, WPARAM wParam, LPARAM lParam) {
  for (const HWND handle : GetTopLevelWindows()) SendMessageW(handle, message, wParam, lParam);
}

void RepaintAll() {
  for (Window* window : TopLevels()) InvalidateAll(*window);
}

void ChangeColors() {
  SendToAll(WM_SYSCOLORCHANGE, 0, 0);
  RepaintAll();
}

void ChangeResolution(int dpi) {
  const int before = GetScreenDpi();
  if (dpi <= 0 || dpi == before) return;
  SetScreenDpi(dpi);
  for (const HWND handle : GetTopLevelWindows()) {
    Window* window = Find(handle);
    if (!window) continue;
    const CRect& old = window->rect;
    RECT suggested{old.left, old.top, old.left + old.Width() * dpi / before,
                   old.top + old.Height() * dpi / before};
    SendMessageW(handle, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), AsParam(&suggested));
    SetWindowPos(handle, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  }
}

// The display moved or sized the window by itself.
void Adopt(const Input& input) {
  Window* root = FindBySurface(input.surface);
  if (!root) return;
  CRect place = root->rect;
  if (input.kind == Kind::Moved) {
    place = place.Moved(input.position.x - place.left, input.position.y - place.top);
  } else {
    place.right = place.left + input.size.cx;
    place.bottom = place.top + input.size.cy;
    root->top->pixels.reset();
    InvalidateAll(*root);
  }
  root->top->place = place;
  Reposition(*root, {root->handle, nullptr, place.left, place.top, place.Width(), place.Height(),
                     SWP_NOZORDER | SWP_NOACTIVATE});
}

// The display lost pixels that are still in the surface: they are only presented again.
void Expose(const Input& input) {
  Window* root = FindBySurface(input.surface);
  if (root) root->top->damage.Unite(input.area);
}

std::optional<MSG> CloseMessage(const Input& input) {
  const Window* root = FindBySurface(input.surface);
  if (!root || !root->IsEnabled()) return std::nullopt;
  return MSG{root->handle, WM_SYSCOMMAND, SC_CLOSE, 0, input.time, {}};
}

void GainFocus(const Input& input) {
  ReadKeyState();
  SurfaceFocused(input.surface);
}

void LoseFocus(const Input& input) {
  ReleaseAllKeys();
  SurfaceUnfocused(input.surface);
}

void FollowDesktop() {
  SetDesktopScheme(display::Current().Scheme());
  BroadcastSchemeChange();
}

std::optional<MSG> Route(const Input& input) {
  switch (input.kind) {
    case Kind::PointerMoved:
    case Kind::ButtonDown:
    case Kind::ButtonUp:
    case Kind::Wheel: return PointerMessage(input);
    case Kind::KeyDown:
    case Kind::KeyUp: return KeyMessage(input);
    case Kind::CloseRequested: return CloseMessage(input);
    case Kind::FilesDropped: return DropMessage(input);
    case Kind::FilesDragged: AnswerDrag(input); break;
    case Kind::PointerLeft: PointerLeft(input.surface); break;
    case Kind::FocusIn: GainFocus(input); break;
    case Kind::FocusOut: LoseFocus(input); break;
    case Kind::Exposed: Expose(input); break;
    case Kind::Moved:
    case Kind::Resized: Adopt(input); break;
    case Kind::ResolutionChanged: ChangeResolution(input.dpi); break;
    case Kind::ColorsChanged: FollowDesktop(); break;
  }
  return std::nullopt;
}

}  // namespace

std::optional<MSG> TakeInput() {
  while (!HasPosted()) {
    const std::optional<Input> input = display::Current().Poll();
    if (!input) return std::nullopt;
    if (auto message = Route(*input)) return message;
  }
  return std::nullopt;
}

void BroadcastSchemeChange() {
  const SystemScheme now = GetSystemScheme();
  const auto known = std::exchange(CurrentSession().scheme, now);
  if (known && known != now) ChangeColors();
}

}  // namespace core
