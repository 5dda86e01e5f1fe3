#include "platform/VirtualKeys.h"
#include "window/Activation.h"
#include "window/Coordinates.h"
#include "window/Cursor.h"
#include "window/Dispatch.h"
#include "window/Focus.h"
#include "window/Frame.h"
#include "window/FrameTracking.h"
#include "window/Position.h"
#include "window/UiState.h"
#include "window/Updates.h"
#include "window/WindowClass.h"
#include "window/WindowText.h"

namespace core {
namespace {

LRESULT OnNcCalcSize(const Window& window, LPARAM lParam) {
  if (auto* rect = reinterpret_cast<RECT*>(lParam)) TakeFrameOff(window, *rect);
  return 0;
}

LRESULT OnNcPaint(Window& window) {
  if (!window.painting.IsEmpty() && !window.windowClass->paintsFrame) PaintFrame(window);
  return 0;
}

LRESULT OnNcActivate(Window& window) {
  InvalidateFrame(window);
  return TRUE;
}

LRESULT OnNcLButtonDown(Window& window, WPARAM part, LPARAM screen) {
  const int hit = static_cast<int>(part);
  const bool sizes = hit >= HTLEFT && hit <= HTBOTTOMRIGHT;
  if (window.top && (hit == HTCAPTION || hit == HTCLOSE || sizes))
    BeginFrameTracking(window, hit, {GET_X_LPARAM(screen), GET_Y_LPARAM(screen)});
  return 0;
}

LRESULT OnSysCommand(Window& window, WPARAM command) {
  constexpr WPARAM kCommandBits = 0xFFF0;
  if ((command & kCommandBits) == SC_CLOSE) Send(window, WM_CLOSE);
  return 0;
}

// Without a handler that paints there is nothing to show; what was due counts as painted.
LRESULT OnPaint(Window& window) {
  if (window.painting.IsEmpty()) return 0;
  PAINTSTRUCT paint{};
  BeginPaint(window.handle, &paint);
  EndPaint(window.handle, &paint);
  return 0;
}

LRESULT OnWindowPosChanging(Window& window, LPARAM lParam) {
  auto* request = reinterpret_cast<WINDOWPOS*>(lParam);
  const bool isLimited = request && window.top && window.Is(WS_THICKFRAME);
  if (!isLimited || (request->flags & SWP_NOSIZE)) return 0;
  const SIZE size = LimitsOf(window).Clamp({request->cx, request->cy});
  request->cx = size.cx;
  request->cy = size.cy;
  return 0;
}

LRESULT OnWindowPosChanged(Window& window, LPARAM lParam) {
  const auto* change = reinterpret_cast<const WINDOWPOS*>(lParam);
  if (!change) return 0;
  const UINT flags = change->flags;
  Hold hold(&window);
  if (!(flags & kNoClientMove)) SendMove(window);
  if (hold.Alive() && !(flags & kNoClientSize)) SendSize(window);
  return 0;
}

LRESULT OnActivate(Window& window, WPARAM how) {
  if (LOWORD(how) != WA_INACTIVE && window.IsEnabled()) ChangeFocus(&window);
  return 0;
}

LRESULT ToParent(Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
  return window.parent ? Send(*window.parent, message, wParam, lParam) : 0;
}

LRESULT OnMouseActivate(Window& window, WPARAM wParam, LPARAM lParam) {
  const LRESULT answer = ToParent(window, WM_MOUSEACTIVATE, wParam, lParam);
  return answer ? answer : MA_ACTIVATE;
}

LRESULT OnRButtonUp(Window& window, LPARAM lParam) {
  const POINT screen = ToScreen(window, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
  Send(window, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window.handle),
       MAKELPARAM(screen.x, screen.y));
  return 0;
}

// By the keyboard: there is no point.
LRESULT AskContextMenu(Window& window) {
  Send(window, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window.handle), MAKELPARAM(-1, -1));
  return 0;
}

LRESULT OnSysKeyDown(Window& window, WPARAM key) {
  const bool shift = GetKeyState(VK_SHIFT) < 0;
  if (key == VK_MENU) ShowKeyboardCues(window);
  if (key == VK_F10 && shift) return AskContextMenu(window);
  if (key == VK_F4 && GetKeyState(VK_MENU) < 0 && Root(window).Is(WS_SYSMENU))
    Send(Root(window), WM_SYSCOMMAND, SC_CLOSE);
  return 0;
}

LRESULT OnCancelMode(Window& window) {
  if (GetCapture() == window.handle) ReleaseCapture();
  return 0;
}

LRESULT OnSetRedraw(Window& window, WPARAM on) {
  window.redraw = on != FALSE;
  return 0;
}

LRESULT Frames(Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_NCCREATE: return TRUE;
    case WM_NCCALCSIZE: return OnNcCalcSize(window, lParam);
    case WM_NCHITTEST: return FramePartAt(window, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
    case WM_NCPAINT: return OnNcPaint(window);
    case WM_NCACTIVATE: return OnNcActivate(window);
    case WM_NCLBUTTONDOWN: return OnNcLButtonDown(window, wParam, lParam);
    default: return 0;
  }
}

LRESULT Places(Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ACTIVATE: return OnActivate(window, wParam);
    case WM_PAINT: return OnPaint(window);
    case WM_CLOSE: return DestroyWindow(window.handle);
    case WM_SETREDRAW: return OnSetRedraw(window, wParam);
    case WM_SETTEXT: return StoreText(window, lParam);
    case WM_GETTEXT: return CopyText(window, wParam, lParam);
    case WM_GETTEXTLENGTH: return static_cast<LRESULT>(window.text.size());
    case WM_CANCELMODE: return OnCancelMode(window);
    case WM_WINDOWPOSCHANGING: return OnWindowPosChanging(window, lParam);
    case WM_WINDOWPOSCHANGED: return OnWindowPosChanged(window, lParam);
    case WM_SYSCOMMAND: return OnSysCommand(window, wParam);
    case WM_CHANGEUISTATE: return ChangeUiState(window, wParam);
    case WM_UPDATEUISTATE: return UpdateUiState(window, wParam);
    case WM_QUERYUISTATE: return window.hiddenCues;
    default: return 0;
  }
}

LRESULT Inputs(Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SETCURSOR: return ChooseCursor(window, wParam, lParam);
    case WM_MOUSEACTIVATE: return OnMouseActivate(window, wParam, lParam);
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
    case WM_CONTEXTMENU: return ToParent(window, message, wParam, lParam);
    case WM_RBUTTONUP: return OnRButtonUp(window, lParam);
    case WM_SYSKEYDOWN: return OnSysKeyDown(window, wParam);
    case WM_KEYUP: return wParam == VK_APPS ? AskContextMenu(window) : 0;
    default: return 0;
  }
}

bool IsFrameMessage(UINT message) {
  return message >= WM_NCCREATE && message <= WM_NCLBUTTONDBLCLK;
}

bool IsInputMessage(UINT message) {
  return message == WM_SETCURSOR || message == WM_MOUSEACTIVATE || message == WM_CONTEXTMENU ||
         (message >= WM_KEYDOWN && message <= WM_SYSCHAR) ||
         (message >= WM_MOUSEMOVE && message <= WM_MOUSEHWHEEL);
}

}  // namespace
}  // namespace core

LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  core::Window* w = core::Find(window);
  if (!w) return 0;
  if (core::IsFrameMessage(message)) return core::Frames(*w, message, wParam, lParam);
  if (core::IsInputMessage(message)) return core::Inputs(*w, message, wParam, lParam);
  return core::Places(*w, message, wParam, lParam);
}
