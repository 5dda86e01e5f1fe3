#pragma once

#include "platform/Classes.h"

namespace Wexa {

// A plain window that shows a part of one other: the pane of a splitter, the view of a scroll area.
// Dialog keys enter it, and commands that reach it are passed on to what it holds.
class HolderView : public CWnd {
 public:
  BOOL Create(const RECT& rect, CWnd* parent);
  // The window inside; null without one.
  HWND Held() const;

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  MoveInterest Moves() const override { return MoveInterest::SizeOnly; }
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

 private:
  LRESULT OnPaint();
};

}  // namespace Wexa
