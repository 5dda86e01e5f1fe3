#include "MFC/drawn/InteractiveWnd.h"

#include "platform/ControlConstants.h"
#include "platform/VirtualKeys.h"

namespace Wexa {

namespace {

POINT PointOf(LPARAM lParam) {
  return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

}  // namespace

LRESULT InteractiveWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto self = weak_from_this().lock();
  return Handle(message, wParam, lParam);
}

LRESULT InteractiveWnd::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETDLGCODE: return DialogCode(reinterpret_cast<MSG*>(lParam));
    case WM_SETCURSOR: return OnSetCursor(wParam, lParam);
    case WM_MOUSEMOVE:
      DrawnWnd::Handle(message, wParam, lParam);
      return OnMouseMove(PointOf(lParam));
    case WM_MOUSELEAVE:
      DrawnWnd::Handle(message, wParam, lParam);
      OnLeave();
      return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: return OnButtonDown(PointOf(lParam));
    case WM_LBUTTONUP: return OnButtonUp(PointOf(lParam));
    case WM_CAPTURECHANGED: return OnCaptureChanged();
    case WM_KEYDOWN: return OnKeyDown(wParam, lParam);
    case WM_TIMER: OnTimer(wParam); return 0;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
      if (OnWheel(static_cast<short>(HIWORD(wParam)), message == WM_MOUSEHWHEEL)) return 0;
      return IsGone() ? 0 : Unhandled(message, wParam, lParam);
    case WM_SETFOCUS:
    case WM_KILLFOCUS: return HandleThenRepaint(message, wParam, lParam);
    default: return DrawnWnd::Handle(message, wParam, lParam);
  }
}

void InteractiveWnd::AddState(ControlState& state) const {
  state.pressed = held_ && state.enabled;
}

// -- Mouse --------------------------------------------------------------------

LRESULT InteractiveWnd::OnMouseMove(POINT point) {
  if (held_) {
    OnDrag(point);
  } else {
    OnHover(point);
  }
  return 0;
}

LRESULT InteractiveWnd::OnButtonDown(POINT point) {
  if ((GetStyle() & WS_TABSTOP) && TakesFocusByClick()) SetFocus();
  if (IsGone() || !IsWindowEnabled()) return 0;
  held_ = true;
  SetCapture(m_hWnd);
  if (IsGone()) return 0;
  Invalidate();
  OnPress(point);
  return 0;
}

LRESULT InteractiveWnd::OnButtonUp(POINT point) {
  if (!held_) return 0;
  held_ = false;
  ReleaseCapture();
  if (IsGone()) return 0;
  Invalidate();
  OnRelease(point);
  return 0;
}

LRESULT InteractiveWnd::OnCaptureChanged() {
  if (!held_) return 0;
  held_ = false;
  Invalidate();
  OnDragCancelled();
  return 0;
}

LRESULT InteractiveWnd::OnSetCursor(WPARAM wParam, LPARAM lParam) {
  const wchar_t* cursor = LOWORD(lParam) == HTCLIENT && IsWindowEnabled() ? Cursor() : nullptr;
  if (!cursor) return Unhandled(WM_SETCURSOR, wParam, lParam);
  ::SetCursor(cursor);
  return TRUE;
}

// -- Keyboard -----------------------------------------------------------------

LRESULT InteractiveWnd::OnKeyDown(WPARAM wParam, LPARAM lParam) {
  if (OnKey(static_cast<int>(wParam))) return 0;
  return IsGone() ? 0 : Unhandled(WM_KEYDOWN, wParam, lParam);
}

int InteractiveWnd::Mirrored(int virtualKey) const {
  if ((GetExStyle() & WS_EX_LAYOUTRTL) == 0) return virtualKey;
  if (virtualKey == VK_LEFT) return VK_RIGHT;
  return virtualKey == VK_RIGHT ? VK_LEFT : virtualKey;
}

}  // namespace Wexa
