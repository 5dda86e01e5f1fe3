#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/Classes.h"

class Painter;

namespace Wexa {

// A window that draws itself and is used by mouse and keyboard. What all of them do alike is here:
// hovering, capture while the button is held, focus, keyboard cues. With WS_TABSTOP it takes the
// focus, by a click too. A window held by a shared pointer lives through the message it handles;
// after a notification a handler looks whether the window still exists (IsGone).
class InteractiveWnd : public CWnd, public std::enable_shared_from_this<InteractiveWnd> {
 public:
  // The window's colours when it is part of a widget; without it they are its parent's.
  std::function<void(ControlPalette&)> fillPalette;

  // `parent` and `id` as for any child window; the text is the window's own.
  BOOL Create(const std::wstring& text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0,
              DWORD exStyle = 0);
  bool HasFocus() const { return ::GetFocus() == m_hWnd; }
  // The font that WM_SETFONT gave; null stands for the system's.
  HFONT Font() const { return font_; }

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  MoveInterest Moves() const override { return MoveInterest::SizeOnly; }

  virtual void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) = 0;
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

  // Enabled, hovered, pressed, focused, with the focus cue when the keyboard was used.
  ControlState State() const;
  bool IsHeld() const { return held_; }
  bool IsHovered() const { return hovered_; }
  bool IsGone() const { return m_hWnd == nullptr; }
  // Left and right arrows change places in a mirrored window.
  int Mirrored(int virtualKey) const;

 private:
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT DefaultThenRepaint(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT OnGetPalette(WPARAM wParam, LPARAM lParam);
  LRESULT OnPaint();
  LRESULT OnMouseMove(POINT point);
  LRESULT OnMouseLeave();
  LRESULT OnButtonDown(POINT point);
  LRESULT OnButtonUp(POINT point);
  LRESULT OnCaptureChanged();
  LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam);
  LRESULT OnSetCursor(WPARAM wParam, LPARAM lParam);

  HFONT font_ = nullptr;
  bool hovered_ = false;
  bool held_ = false;
};

// Fills a palette with what the window answers, over the system's colours.
ControlPalette PaletteOf(CWnd& window);

}  // namespace Wexa
