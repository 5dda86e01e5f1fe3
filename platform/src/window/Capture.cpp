#include "window/Capture.h"

#include "window/Dispatch.h"
#include "window/FrameTracking.h"
#include "window/Session.h"

namespace core {
namespace {

HWND& Captured() {
  return CurrentSession().captured;
}

void TellDisplay(Window* window) {
  if (!window) return display::Current().UngrabPointer();
  const display::SurfaceId surface = Root(*window).top->surfaceId;
  if (surface != 0) display::Current().GrabPointer(surface);
}

void Change(Window* window) {
  const HWND before = Captured();
  const HWND handle = window ? window->handle : nullptr;
  if (before == handle) return;
  Captured() = handle;
  TellDisplay(window);
  EndFrameTracking();
  if (Window* old = Find(before))
    Send(*old, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(handle));
}

}  // namespace

Window* CapturingWindow() {
  return Find(Captured());
}

void ForgetCapture(const Window& window) {
  if (Captured() != window.handle) return;
  Captured() = nullptr;
  display::Current().UngrabPointer();
  EndFrameTracking();
}

}  // namespace core

HWND GetCapture() {
  const core::Window* captured = core::CapturingWindow();
  return captured ? captured->handle : nullptr;
}

HWND SetCapture(HWND window) {
  const HWND before = GetCapture();
  core::Window* w = core::Find(window);
  if (!w) return nullptr;
  core::Change(w);
  return before;
}

BOOL ReleaseCapture() {
  core::Change(nullptr);
  return TRUE;
}
