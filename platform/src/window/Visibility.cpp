#include "window/Activation.h"
#include "window/Capture.h"
#include "window/Dispatch.h"
#include "window/Focus.h"
#include "window/Position.h"
#include "window/TopLevelSurface.h"

using core::Find;
using core::Hold;
using core::Send;
using core::Window;

namespace {

UINT ShowFlags(const Window& window, int command) {
  UINT flags = SWP_NOMOVE | SWP_NOSIZE;
  if (command == SW_HIDE) return flags | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW;
  flags |= SWP_SHOWWINDOW;
  const bool activate = command != SW_SHOWNA && !window.parent;
  if (!activate) flags |= SWP_NOACTIVATE;
  return window.parent ? flags | SWP_NOZORDER : flags;
}

// A window that disappears or stops taking input hands the focus on: a dialog gives it to its next
// stop, other windows to what holds this one.
void PassFocusOn(Window& window) {
  const auto hasFocus = [&] { return core::IsInside(window, core::FocusedWindow()); };
  if (!hasFocus()) return;
  Hold hold(&window);
  if (window.parent) Send(core::Root(window), WM_NEXTDLGCTL);
  if (!hold.Alive() || !hasFocus()) return;
  Window* heir = window.parent;
  while (heir && !heir->IsEnabled()) heir = heir->parent;
  core::ChangeFocus(heir);
}

void Disable(Window& window) {
  Hold hold(&window);
  Send(window, WM_CANCELMODE);
  if (!hold.Alive()) return;
  window.style |= WS_DISABLED;
  PassFocusOn(window);
}

}  // namespace

BOOL ShowWindow(HWND window, int command) {
  Window* w = Find(window);
  if (!w) return FALSE;
  const bool was = w->IsVisible();
  const bool show = command != SW_HIDE;
  if (was == show) {
    if (show && command != SW_SHOWNA && w->top && core::CanActivate(*w))
      core::Activate(w, WA_ACTIVE);
    return was;
  }
  Hold hold(w);
  Send(*w, WM_SHOWWINDOW, show);
  if (!hold.Alive()) return was;
  core::Reposition(*w, {window, HWND_TOP, 0, 0, 0, 0, ShowFlags(*w, command)});
  if (hold.Alive() && !show && w->parent) PassFocusOn(*w);
  return was;
}

BOOL IsWindowVisible(HWND window) {
  const Window* w = Find(window);
  return w && core::IsShown(*w);
}

BOOL EnableWindow(HWND window, BOOL enable) {
  Window* w = Find(window);
  if (!w) return FALSE;
  const bool wasDisabled = !w->IsEnabled();
  if (wasDisabled != (enable != FALSE)) return wasDisabled;
  Hold hold(w);
  if (enable)
    w->style &= ~WS_DISABLED;
  else
    Disable(*w);
  if (hold.Alive() && w->top) core::UpdateModality(*w);
  Send(*w, WM_ENABLE, enable != FALSE);
  return wasDisabled;
}

BOOL IsWindowEnabled(HWND window) {
  const Window* w = Find(window);
  return w && w->IsEnabled();
}
