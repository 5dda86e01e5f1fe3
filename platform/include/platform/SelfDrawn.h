#pragma once

// What every window that draws itself does alike, whether it is a native control that is made by
// the name of its class or a window of a widget's own.

#include "Theme.h"
#include "Window.h"

#pragma GCC visibility push(default)  // hosts may use all of this

// What the window paints with: the system's colours, changed by whatever answers
// WM_GETCONTROLPALETTE.
ControlPalette GetControlPalette(HWND window);
// How the window stands: what it answers to WM_GETCONTROLSTATE. For a window that does not draw
// itself, the state of one that is at rest.
ControlState GetControlState(HWND window);

// Painting, hovering, the font, the cues for users of the keyboard. A class that derives from this
// hands its window's messages to Handle.
class SelfDrawn {
 public:
  SelfDrawn() = default;
  SelfDrawn(const SelfDrawn&) = delete;
  SelfDrawn& operator=(const SelfDrawn&) = delete;
  virtual ~SelfDrawn() = default;

  virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

  // The font that WM_SETFONT gave; null stands for the system's.
  HFONT Font() const { return font_; }
  ControlState State() const { return GetControlState(Window()); }

 protected:
  virtual HWND Window() const = 0;
  // What becomes of a message that is not handled here.
  virtual LRESULT Unhandled(UINT message, WPARAM wParam, LPARAM lParam) = 0;
  // Draws the whole client area.
  virtual void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) = 0;
  // Adds what only the control knows to its state: pressed, checked, default.
  virtual void AddState(ControlState&) const {}
  virtual void OnFontChanged() {}
  // Whether the pointer over it changes its look.
  virtual bool ShowsHover() const { return true; }

  bool IsHovered() const { return hovered_; }
  void Repaint() const { InvalidateRect(Window(), nullptr, FALSE); }
  // The usual processing, and a repaint when the window has outlived it.
  LRESULT HandleThenRepaint(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  void OnPaint();
  void OnSetFont(HFONT font, bool redraw);
  LRESULT OnGetState(ControlState& state) const;
  void SetHovered(bool hovered);

  HFONT font_ = nullptr;
  bool hovered_ = false;
};

#pragma GCC visibility pop
