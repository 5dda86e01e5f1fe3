#include <exception>

#include "window/Activation.h"
#include "window/Capture.h"
#include "window/Dispatch.h"
#include "window/DropFiles.h"
#include "window/Focus.h"
#include "window/Pointer.h"
#include "window/Timers.h"
#include "window/TopLevelSurface.h"
#include "window/WindowClass.h"

namespace core {
namespace {

// Ends windows. A handler on the way may end what holds the window, and the window with it: each
// step is done once, by whoever comes to it first. What handlers throw is kept until everything is
// gone.
class Destroyer {
 public:
  void Destroy(Window& window) {
    Hold hold(&window);
    if (!hold.Alive() || window.destroying) return;
    window.destroying = true;
    Guarded([&] { Hide(window); });
    DestroyOwned(window);
    SendDestroy(window);
    Remove(window);
  }

  void Rethrow() const {
    if (error_) std::rethrow_exception(error_);
  }

 private:
  template <typename Step>
  void Guarded(Step step) {
    try {
      step();
    } catch (...) {
      if (!error_) error_ = std::current_exception();
    }
  }

  static void Hide(Window& window) {
    if (!window.IsVisible()) return;
    if (window.parent) {
      ShowWindow(window.handle, SW_HIDE);
    } else {
      constexpr UINT kKeep = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
      SetWindowPos(window.handle, nullptr, 0, 0, 0, 0, kKeep | SWP_HIDEWINDOW);
    }
  }

  void DestroyOwned(const Window& window) {
    if (!window.top) return;
    for (const HWND handle : GetTopLevelWindows()) {
      Window* other = Find(handle);
      if (other && other->owner == window.handle) Destroy(*other);
    }
  }

  static std::vector<HWND> Children(const Window& window) {
    std::vector<HWND> handles;
    for (const Window* child : window.children) handles.push_back(child->handle);
    return handles;
  }

  void SendDestroy(Window& window) {
    Hold hold(&window);
    window.destroying = true;
    if (!std::exchange(window.destroyTold, true)) Guarded([&] { Send(window, WM_DESTROY); });
    if (!hold.Alive()) return;
    for (const HWND handle : Children(window))
      if (Window* child = Find(handle)) SendDestroy(*child);
  }

  void Remove(Window& window) {
    Hold hold(&window);
    while (hold.Alive() && !window.children.empty()) Remove(*window.children.back());
    TellTheEnd(window);
    if (!hold.Alive()) return;
    Forget(window);
    RemoveWindow(window);
  }

  // The class frees what it keeps for the window, also where a subclass did not let it know.
  void TellTheEnd(Window& window) {
    if (!std::exchange(window.endTold, true)) Guarded([&] { Send(window, WM_NCDESTROY); });
    if (!window.alive || window.classToldEnd) return;
    window.classToldEnd = true;
    Guarded([&] { window.windowClass->procedure(window.handle, WM_NCDESTROY, 0, 0); });
  }

  static void Forget(Window& window) {
    ForgetFocus(window);
    ForgetCapture(window);
    ForgetActivation(window);
    ForgetTimers(window.handle);
    ForgetDrops(window.handle);
    ForgetPointer(window);
    if (window.top) DestroySurface(window);
  }

  std::exception_ptr error_;
};

}  // namespace
}  // namespace core

BOOL DestroyWindow(HWND window) {
  core::Window* w = core::Find(window);
  if (!w || w->destroying) return FALSE;
  core::Destroyer destroyer;
  destroyer.Destroy(*w);
  destroyer.Rethrow();
  return TRUE;
}

BOOL IsWindow(HWND window) {
  return core::Find(window) != nullptr;
}
