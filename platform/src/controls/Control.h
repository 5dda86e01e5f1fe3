#pragma once

// What all standard controls share. A control's object lives in its window's extra bytes from
// WM_NCCREATE to WM_NCDESTROY.

#include <memory>
#include <string>

#include "platform/Geometry.h"
#include "platform/SelfDrawn.h"
#include "platform/Window.h"

class Control : public SelfDrawn {
 protected:
  explicit Control(HWND window) : window_(window) {}

  HWND Window() const final { return window_; }
  LRESULT Unhandled(UINT message, WPARAM wParam, LPARAM lParam) final {
    return Default(message, wParam, lParam);
  }

  DWORD Style() const;
  CRect Client() const;
  std::wstring Text() const { return GetWindowTextString(window_); }
  bool HasFocus() const { return GetFocus() == window_; }
  LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) const;
  // WM_COMMAND to the parent. The window may be gone afterwards: false.
  bool Notify(int code) const;

 private:
  HWND window_;
};

// The window procedure of the class whose windows are `ControlType`s. The object outlives the
// handling of a message in which its window is destroyed.
template <class ControlType>
LRESULT ControlProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  using Slot = std::shared_ptr<Control>*;
  auto* slot = static_cast<Slot*>(GetWindowExtra(window));
  if (slot && message == WM_NCCREATE) *slot = new std::shared_ptr<Control>(new ControlType(window));
  if (!slot || !*slot) return DefWindowProcW(window, message, wParam, lParam);
  const std::shared_ptr<Control> control = **slot;
  if (message == WM_NCDESTROY) {
    delete *slot;
    *slot = nullptr;
  }
  return control->Handle(message, wParam, lParam);
}

// Registers a class of such windows.
template <class ControlType>
void RegisterControl(const wchar_t* className, const wchar_t* cursor, bool paintsFrame = false) {
  const WNDCLASSW description{
      className, ControlProcedure<ControlType>, sizeof(std::shared_ptr<Control>*),
      cursor,    MoveInterest::SizeOnly,        paintsFrame};
  RegisterClassW(&description);
}
