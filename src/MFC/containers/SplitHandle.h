#pragma once

#include <functional>

#include "MFC/drawn/InteractiveWnd.h"

namespace Wexa {

// The handle between two panes of a splitter, moved by the mouse or, with the focus, by arrow keys.
// Distances are in pixels along the splitter's axis.
class SplitHandle : public InteractiveWnd {
 public:
  std::function<void(int)> onDragged;  // from where it was pressed
  std::function<void()> onDropped;
  std::function<void()> onCancelled;
  std::function<void(int)> onKeyMoved;

  bool sideBySide = true;  // the panes; the handle is vertical then

  bool IsDragged() const { return IsHeld(); }

 protected:
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
  bool TakesFocusByClick() const override { return false; }
  void OnPress(POINT point) override { pressedAt_ = PlaceOf(point); }
  void OnDrag(POINT point) override { onDragged(PlaceOf(point) - pressedAt_); }
  void OnRelease(POINT) override { onDropped(); }
  void OnDragCancelled() override { onCancelled(); }
  bool OnKey(int virtualKey) override;
  LRESULT DialogCode(const MSG*) const override { return DLGC_WANTARROWS; }
  const wchar_t* Cursor() const override { return sideBySide ? IDC_SIZEWE : IDC_SIZENS; }

 private:
  int PlaceOf(POINT point) const;

  int pressedAt_ = 0;
};

}  // namespace Wexa
