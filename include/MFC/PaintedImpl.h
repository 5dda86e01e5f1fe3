#pragma once

#include "MFC/DrawnImpl.h"

namespace Wexa {

// Widgets that are looked at and widgets that hold others: the implementation draws its window.
// What is used by mouse and keyboard has a window class of its own instead, an InteractiveWnd.
class PaintedImpl : public DrawnImpl {
 public:
  explicit PaintedImpl(BaseGUIObject* owner);

  // Draws the client area, whose background is not filled yet.
  virtual void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) = 0;
  // Native messages of the window before its default processing; true when handled.
  virtual bool OnMessage(UINT, WPARAM, LPARAM, LRESULT&) { return false; }
  // Input for the window or one inside it, before it is dispatched; true when it is used up.
  virtual bool OnPreTranslate(const MSG&) { return false; }
};

}  // namespace Wexa
