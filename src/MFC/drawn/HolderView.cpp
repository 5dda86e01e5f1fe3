#include "MFC/drawn/HolderView.h"

#include "MFC/EventDispatch.h"
#include "MFC/drawn/InteractiveWnd.h"
#include "platform/Painter.h"

namespace Wexa {

namespace {

constexpr wchar_t kWindowClass[] = L"HolderView";

void RegisterOnce() {
  static const WNDCLASSW description{kWindowClass, DefWindowProcW, 0, nullptr,
                                     MoveInterest::SizeOnly};
  static const ATOM registered = RegisterClassW(&description);
  static_cast<void>(registered);
}

}  // namespace

BOOL HolderView::Create(const RECT& rect, CWnd* parent) {
  RegisterOnce();
  return CreateEx(WS_EX_CONTROLPARENT, kWindowClass, L"", WS_CHILD | WS_VISIBLE, rect, parent, 0);
}

HWND HolderView::Held() const {
  return GetWindow(m_hWnd, GW_CHILD);
}

LRESULT HolderView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT:
      // The notice that climbs the parents after a paint.
      if (lParam == kPostPaint) return GetParent()->SendMessage(WM_PAINT, 0, kPostPaint);
      return OnPaint();
    case WM_ERASEBKGND: return TRUE;
    case WM_GETCONTROLPALETTE: return GetParent()->SendMessage(message, wParam, lParam);
    default: return CWnd::WindowProc(message, wParam, lParam);
  }
}

LRESULT HolderView::OnPaint() {
  CPaintDC dc(m_hWnd);
  Painter painter(dc);
  painter.FillRect(GetClientRect(), PaletteOf(*this).background);
  return 0;
}

BOOL HolderView::OnCommand(WPARAM wParam, LPARAM lParam) {
  HWND held = Held();
  if (!held) return FALSE;
  SendMessageW(held, WM_COMMAND, wParam, lParam);
  return TRUE;
}

}  // namespace Wexa
