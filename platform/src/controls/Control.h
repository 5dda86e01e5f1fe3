#pragma once

// What all standard controls share. A control's object lives in its window's extra bytes from
// WM_NCCREATE to WM_NCDESTROY.

#include <memory>
#include <string>

#include "platform/Geometry.h"
#include "platform/Theme.h"
#include "platform/Window.h"

class Control {
 public:
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  // Messages common to all controls; the rest goes to DefWindowProcW.
  virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

 protected:
  explicit Control(HWND window) : window_(window) {}

  // Draws the whole client area and changes nothing.
  virtual void Paint(Painter& painter, const CRect& client) const = 0;
  virtual void OnFontChanged() {}

  HWND Window() const { return window_; }
  HFONT Font() const { return font_; }
  bool IsHovered() const { return hovered_; }
  DWORD Style() const;
  CRect Client() const;
  std::wstring Text() const { return GetWindowTextString(window_); }
  bool HasFocus() const { return GetFocus() == window_; }
  ControlPalette Palette() const;
  // Enabled, hovered, focused and the keyboard cues; the control adds what only it knows.
  ControlState State() const;
  // DT_HIDEPREFIX until the keyboard was used.
  UINT PrefixFormat() const;

  void Repaint() const { InvalidateRect(window_, nullptr, FALSE); }
  LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) const;
  // WM_COMMAND to the parent. The window may be gone afterwards: false.
  bool Notify(int code) const;

 private:
  void OnPaint() const;
  void OnSetFont(HFONT font, bool redraw);
  void SetHovered(bool hovered);
  bool ShowsCue(int flag) const;
  LRESULT DefaultThenRepaint(UINT message, WPARAM wParam, LPARAM lParam) const;

  HWND window_;
  HFONT font_ = nullptr;
  bool hovered_ = false;
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
