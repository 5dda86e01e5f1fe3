#pragma once

#include <memory>

#include "MFC/DrawnWnd.h"

namespace Wexa {

// A window that is used by mouse and keyboard: capture while the button is held, focus, keys. With
// WS_TABSTOP it takes the focus, by a click too. A window held by a shared pointer lives through
// the message it handles; after a notification a handler looks whether the window still exists
// (IsGone).
class InteractiveWnd : public DrawnWnd, public std::enable_shared_from_this<InteractiveWnd> {
 public:
  bool HasFocus() const { return ::GetFocus() == m_hWnd; }
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  void AddState(ControlState& state) const override;

  virtual void OnPress(POINT) {}
  virtual void OnDrag(POINT) {}
  virtual void OnRelease(POINT) {}
  virtual void OnDragCancelled() {}
  virtual void OnHover(POINT) {}
  virtual void OnLeave() {}
  virtual void OnTimer(UINT_PTR) {}
  // True: the key was used.
  virtual bool OnKey(int) { return false; }
  // In notches of 120; true: it was used, else the parent gets it.
  virtual bool OnWheel(int, bool) { return false; }
  virtual bool TakesFocusByClick() const { return true; }
  // Which keys the dialog leaves to the window; `message` may be null.
  virtual LRESULT DialogCode(const MSG*) const { return 0; }
  // An IDC_ identifier, or null for the arrow.
  virtual const wchar_t* Cursor() const { return nullptr; }

  bool IsHeld() const { return held_; }
  bool IsGone() const { return m_hWnd == nullptr; }
  // Left and right arrows change places in a mirrored window.
  int Mirrored(int virtualKey) const;

 private:
  LRESULT OnMouseMove(POINT point);
  LRESULT OnButtonDown(POINT point);
  LRESULT OnButtonUp(POINT point);
  LRESULT OnCaptureChanged();
  LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam);
  LRESULT OnSetCursor(WPARAM wParam, LPARAM lParam);

  bool held_ = false;
};

}  // namespace Wexa
