#include "classes/ClassLayer.h"
#include "controls/StandardControls.h"
#include "platform/Postponed.h"

CWnd::~CWnd() {
  const HWND window = m_hWnd;
  const bool owned = owned_;
  ClassLayer::Detach(*this);
  if (owned) RunPostponing([window] { ::DestroyWindow(window); });
}

CWnd* CWnd::FromHandle(HWND window) {
  return ClassLayer::FindOrMake(window);
}

CWnd* CWnd::FromHandlePermanent(HWND window) {
  return ClassLayer::FindPermanent(window);
}

BOOL CWnd::CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style,
                    const RECT& rect, CWnd* parent, UINT id) {
  if (m_hWnd) return FALSE;
  RegisterStandardControls();
  const CreationScope scope(*this);
  const CRect place(rect);
  const HWND window =
      CreateWindowExW(exStyle, className, text, style, place.left, place.top, place.Width(),
                      place.Height(), parent ? parent->GetSafeHwnd() : nullptr,
                      reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr);
  return window != nullptr;
}

BOOL CWnd::Attach(HWND window) {
  return ClassLayer::Attach(*this, window);
}

HWND CWnd::Detach() {
  const HWND window = m_hWnd;
  ClassLayer::Detach(*this);
  return window;
}

BOOL CWnd::DestroyWindow() {
  return ::DestroyWindow(m_hWnd);
}

BOOL CWnd::PreTranslateMessage(MSG*) {
  return FALSE;
}

// -- Routing -------------------------------------------------------------------------------------

namespace {

HWND SenderOf(UINT message, LPARAM lParam) {
  if (message == WM_COMMAND) return reinterpret_cast<HWND>(lParam);
  return lParam ? reinterpret_cast<const NMHDR*>(lParam)->hwndFrom : nullptr;
}

}  // namespace

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_COMMAND && message != WM_NOTIFY) return Default(message, wParam, lParam);
  const HWND window = m_hWnd;
  LRESULT result = 0;
  CWnd* sender = FromHandlePermanent(SenderOf(message, lParam));
  if (sender && sender != this && sender->OnChildNotify(message, wParam, lParam, &result)) {
    return result;
  }
  if (FromHandlePermanent(window) != this) return 0;
  const BOOL handled =
      message == WM_COMMAND ? OnCommand(wParam, lParam) : OnNotify(wParam, lParam, &result);
  if (handled) return result;
  return FromHandlePermanent(window) == this ? Default(message, wParam, lParam) : 0;
}

BOOL CWnd::OnCommand(WPARAM, LPARAM) {
  return FALSE;
}

BOOL CWnd::OnNotify(WPARAM, LPARAM, LRESULT*) {
  return FALSE;
}

BOOL CWnd::OnChildNotify(UINT, WPARAM, LPARAM, LRESULT*) {
  return FALSE;
}

LRESULT CWnd::Default(UINT message, WPARAM wParam, LPARAM lParam) {
  return DefSubclassProc(m_hWnd, message, wParam, lParam);
}
