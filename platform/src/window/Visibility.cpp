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

// A window that disappears or stops taking input gives the focus to what still can hold it.
void PassFocusOn(Window& window) {
  if (!core::IsInside(window, Find(GetFocus()))) return;
  core::ChangeFocus(window.parent);
}

void Disable(Window& window) {
  Hold hold(&window);
  Send(window, WM_CANCELMODE);
  if (!hold.Alive()) return;
  window.style |= WS_DISABLED;
  if (core::IsInside(window, Find(GetFocus()))) core::ChangeFocus(nullptr);
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
