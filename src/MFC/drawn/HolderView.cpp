#include "MFC/drawn/HolderView.h"

#include "platform/Painter.h"

namespace Wexa {

BOOL HolderView::Create(const RECT& rect, CWnd* parent) {
  return DrawnWnd::Create(L"", WS_CHILD | WS_VISIBLE, rect, parent, 0, WS_EX_CONTROLPARENT);
}

HWND HolderView::Held() const {
  return GetWindow(m_hWnd, GW_CHILD);
}

void HolderView::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  painter.FillRect(client, palette.background);
}

BOOL HolderView::OnCommand(WPARAM wParam, LPARAM lParam) {
  HWND held = Held();
  if (!held) return FALSE;
  SendMessageW(held, WM_COMMAND, wParam, lParam);
  return TRUE;
}

}  // namespace Wexa
