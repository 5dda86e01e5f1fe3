#include "window/Focus.h"

#include "window/Activation.h"
#include "window/Dispatch.h"
#include "window/Session.h"

namespace core {
namespace {

HWND& Focused() {
  return CurrentSession().focused;
}

WPARAM AsWord(HWND window) {
  return reinterpret_cast<WPARAM>(window);
}

}  // namespace

void ChangeFocus(Window* window) {
  const HWND handle = window ? window->handle : nullptr;
  const HWND before = Focused();
  if (before == handle) return;
  Hold hold(window);
  Focused() = handle;
  if (Window* old = Find(before)) Send(*old, WM_KILLFOCUS, AsWord(handle));
  if (hold.Alive() && Focused() == handle) Send(*window, WM_SETFOCUS, AsWord(before));
}

Window* FocusedWindow() {
  return Find(Focused());
}

void ForgetFocus(const Window& window) {
  if (Focused() == window.handle) Focused() = nullptr;
}

}  // namespace core

using core::Find;
using core::Window;

HWND GetFocus() {
  const Window* focused = core::FocusedWindow();
  return focused ? focused->handle : nullptr;
}

HWND SetFocus(HWND window) {
  const HWND before = GetFocus();
  Window* w = Find(window);
  if (window && (!w || !core::CanTakeInput(*w))) return nullptr;
  if (!w || window == before) {
    core::ChangeFocus(w);
    return before;
  }
  core::Hold hold(w);
  Window& root = core::Root(*w);
  if (core::ActiveWindow() != &root) core::Activate(&root, WA_ACTIVE);
  if (hold.Alive() && core::ActiveWindow() == &root) core::ChangeFocus(w);
  return before;
}
