#pragma once

#include "MFC/DrawnWnd.h"

namespace Wexa {

// A plain window that shows a part of one other: the pane of a splitter, the view of a scroll area.
// Dialog keys enter it, and commands that reach it are passed on to what it holds.
class HolderView : public DrawnWnd {
 public:
  BOOL Create(const RECT& rect, CWnd* parent);
  // The window inside; null without one.
  HWND Held() const;

 protected:
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
  bool ShowsHover() const override { return false; }
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
};

}  // namespace Wexa
