#include "window/Activation.h"

#include "window/Dispatch.h"
#include "window/DisplayFocus.h"
#include "window/Focus.h"
#include "window/Position.h"
#include "window/Session.h"

namespace core {
namespace {

HWND& Active() {
  return CurrentSession().active;
}

void Deactivate(Window& root, Window* next) {
  Hold hold(&root);
  root.top->active = false;
  Send(root, WM_NCACTIVATE, FALSE);
  const HWND to = next && next->alive ? next->handle : nullptr;
  if (hold.Alive()) Send(root, WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(to));
}

bool IsStillActive(const Window& root) {
  return root.alive && Active() == root.handle;
}

void Enter(Window& root, UINT how, HWND previous) {
  root.top->active = true;
  Raise(root);
  if (IsStillActive(root) && root.IsVisible()) RequestDisplayFocus(root.top->surfaceId);
  if (IsStillActive(root)) Send(root, WM_NCACTIVATE, TRUE);
  if (IsStillActive(root)) Send(root, WM_ACTIVATE, how, reinterpret_cast<LPARAM>(previous));
  if (IsStillActive(root) && !IsInside(root, FocusedWindow()) && root.IsEnabled())
    ChangeFocus(&root);
}

}  // namespace

Window* ActiveWindow() {
  return Find(Active());
}

bool CanActivate(const Window& root) {
  return root.top && root.IsEnabled() && !(root.exStyle & WS_EX_NOACTIVATE);
}

void Activate(Window* root, UINT how) {
  const HWND before = Active();
  const HWND handle = root ? root->handle : nullptr;
  if (before == handle) return;
  Hold hold(root);
  Active() = handle;
  if (Window* old = Find(before)) Deactivate(*old, root);
  if (Active() != handle) return;
  if (hold.Alive())
    Enter(*root, how, before);
  else
    ChangeFocus(nullptr);
}

Window* EnabledPopUp(const Window& root) {
  for (Window* w : TopLevels()) {
    if (w->owner != root.handle || !w->IsVisible()) continue;
    if (CanActivate(*w)) return w;
    if (Window* deeper = EnabledPopUp(*w)) return deeper;
  }
  return nullptr;
}

void EnterShown(Window& root, bool activate) {
  if (Active() == root.handle)
    RequestDisplayFocus(root.top->surfaceId);
  else if (activate && CanActivate(root))
    Activate(&root, WA_ACTIVE);
}

void LeaveHidden(Window& root) {
  if (Active() != root.handle) return;
  Window* owner = Find(root.owner);
  if (owner && owner->IsVisible() && CanActivate(*owner)) return Activate(owner, WA_ACTIVE);
  for (Window* w : TopLevels())
    if (w != &root && w->IsVisible() && CanActivate(*w)) return Activate(w, WA_ACTIVE);
  Activate(nullptr, WA_INACTIVE);
}

void ForgetActivation(const Window& window) {
  if (Active() == window.handle) Active() = nullptr;
}

void SurfaceFocused(display::SurfaceId id) {
  Window* root = FindBySurface(id);
  if (!NoteFocused(id) || !root) return;
  if (!root->IsEnabled()) root = EnabledPopUp(*root);
  if (root && CanActivate(*root)) Activate(root, WA_ACTIVE);
}

void SurfaceUnfocused(display::SurfaceId id) {
  const bool isNews = NoteUnfocused(id);
  Window* root = FindBySurface(id);
  if (isNews && root && Active() == root->handle) Activate(nullptr, WA_INACTIVE);
}

}  // namespace core

using core::Find;
using core::Window;

HWND GetActiveWindow() {
  const Window* active = core::ActiveWindow();
  return active ? active->handle : nullptr;
}

HWND SetActiveWindow(HWND window) {
  const HWND before = GetActiveWindow();
  Window* w = Find(window);
  if (!w || !core::CanActivate(*w)) return nullptr;
  core::Activate(w, WA_ACTIVE);
  return before;
}

BOOL SetForegroundWindow(HWND window) {
  SetActiveWindow(window);
  return window && GetActiveWindow() == window;
}
