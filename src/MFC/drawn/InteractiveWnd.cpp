#include "MFC/drawn/InteractiveWnd.h"

#include "MFC/EventDispatch.h"
#include "platform/ControlConstants.h"
#include "platform/Painter.h"
#include "platform/VirtualKeys.h"

namespace Wexa {

namespace {

constexpr wchar_t kWindowClass[] = L"WexaInteractive";

void RegisterOnce() {
  static const WNDCLASSW description{kWindowClass, DefWindowProcW, 0, nullptr,
                                     MoveInterest::SizeOnly};
  static const ATOM registered = RegisterClassW(&description);
  static_cast<void>(registered);
}

POINT PointOf(LPARAM lParam) {
  return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

}  // namespace

ControlPalette PaletteOf(CWnd& window) {
  ControlPalette palette = SystemPalette();
  window.SendMessage(WM_GETCONTROLPALETTE, 0, reinterpret_cast<LPARAM>(&palette));
  return palette;
}

BOOL InteractiveWnd::Create(const std::wstring& text, DWORD style, const RECT& rect, CWnd* parent,
                            UINT id, DWORD exStyle) {
  RegisterOnce();
  return CreateEx(exStyle, kWindowClass, text.c_str(), style, rect, parent, id);
}

LRESULT InteractiveWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto self = weak_from_this().lock();
  return Handle(message, wParam, lParam);
}

LRESULT InteractiveWnd::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT: return lParam == kPostPaint ? 0 : OnPaint();
    case WM_ERASEBKGND: return TRUE;
    case WM_GETCONTROLPALETTE: return OnGetPalette(wParam, lParam);
    case WM_GETDLGCODE: return DialogCode(reinterpret_cast<MSG*>(lParam));
    case WM_SETCURSOR: return OnSetCursor(wParam, lParam);
    case WM_MOUSEMOVE: return OnMouseMove(PointOf(lParam));
    case WM_MOUSELEAVE: return OnMouseLeave();
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: return OnButtonDown(PointOf(lParam));
    case WM_LBUTTONUP: return OnButtonUp(PointOf(lParam));
    case WM_CAPTURECHANGED: return OnCaptureChanged();
    case WM_KEYDOWN: return OnKeyDown(wParam, lParam);
    case WM_TIMER: OnTimer(wParam); return 0;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
      if (OnWheel(static_cast<short>(HIWORD(wParam)), message == WM_MOUSEHWHEEL)) return 0;
      return IsGone() ? 0 : CWnd::WindowProc(message, wParam, lParam);
    case WM_GETFONT: return reinterpret_cast<LRESULT>(font_);
    case WM_SETFONT:
      font_ = reinterpret_cast<HFONT>(wParam);
      Invalidate();
      return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
    case WM_SYSCOLORCHANGE:
    case WM_SETTEXT:
    case WM_UPDATEUISTATE: return DefaultThenRepaint(message, wParam, lParam);
    default: return CWnd::WindowProc(message, wParam, lParam);
  }
}

LRESULT InteractiveWnd::DefaultThenRepaint(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = CWnd::WindowProc(message, wParam, lParam);
  if (!IsGone()) Invalidate();
  return result;
}

LRESULT InteractiveWnd::OnGetPalette(WPARAM wParam, LPARAM lParam) {
  if (!fillPalette) return GetParent()->SendMessage(WM_GETCONTROLPALETTE, wParam, lParam);
  fillPalette(*reinterpret_cast<ControlPalette*>(lParam));
  return TRUE;
}

LRESULT InteractiveWnd::OnPaint() {
  CPaintDC dc(m_hWnd);
  Painter painter(dc);
  Paint(painter, GetClientRect(), PaletteOf(*this));
  return 0;
}

ControlState InteractiveWnd::State() const {
  ControlState state;
  state.enabled = IsWindowEnabled();
  state.hovered = hovered_ && state.enabled;
  state.pressed = held_ && state.enabled;
  state.focused = HasFocus();
  state.focusCue = state.focused && (SendMessage(WM_QUERYUISTATE) & UISF_HIDEFOCUS) == 0;
  return state;
}

// -- Mouse --------------------------------------------------------------------

LRESULT InteractiveWnd::OnMouseMove(POINT point) {
  if (!hovered_) {
    hovered_ = true;
    TRACKMOUSEEVENT request{sizeof(TRACKMOUSEEVENT), TME_LEAVE, m_hWnd, 0};
    TrackMouseEvent(&request);
    Invalidate();
  }
  if (held_) {
    OnDrag(point);
  } else {
    OnHover(point);
  }
  return 0;
}

LRESULT InteractiveWnd::OnMouseLeave() {
  hovered_ = false;
  Invalidate();
  OnLeave();
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
  if (!cursor) return CWnd::WindowProc(WM_SETCURSOR, wParam, lParam);
  ::SetCursor(cursor);
  return TRUE;
}

// -- Keyboard -----------------------------------------------------------------

LRESULT InteractiveWnd::OnKeyDown(WPARAM wParam, LPARAM lParam) {
  if (OnKey(static_cast<int>(wParam))) return 0;
  return IsGone() ? 0 : CWnd::WindowProc(WM_KEYDOWN, wParam, lParam);
}

int InteractiveWnd::Mirrored(int virtualKey) const {
  if ((GetExStyle() & WS_EX_LAYOUTRTL) == 0) return virtualKey;
  if (virtualKey == VK_LEFT) return VK_RIGHT;
  return virtualKey == VK_RIGHT ? VK_LEFT : virtualKey;
}

}  // namespace Wexa
