// The calls of CWnd that forward to its window.

#include "platform/Classes.h"

namespace {

BOOL ModifyWord(HWND window, int index, DWORD remove, DWORD add, UINT positionFlags) {
  const auto before = static_cast<DWORD>(GetWindowLongPtrW(window, index));
  const DWORD after = (before & ~remove) | add;
  if (after == before) return FALSE;
  SetWindowLongPtrW(window, index, static_cast<LONG_PTR>(after));
  constexpr UINT kStay = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
  if (positionFlags) ::SetWindowPos(window, nullptr, 0, 0, 0, 0, kStay | positionFlags);
  return TRUE;
}

}  // namespace

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
  return SendMessageW(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
  return m_hWnd && PostMessageW(m_hWnd, message, wParam, lParam);
}

// -- Styles and tree -----------------------------------------------------------------------------

DWORD CWnd::GetStyle() const {
  return static_cast<DWORD>(GetWindowLongPtrW(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const {
  return static_cast<DWORD>(GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE));
}

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT positionFlags) {
  return ModifyWord(m_hWnd, GWL_STYLE, remove, add, positionFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add, UINT positionFlags) {
  return ModifyWord(m_hWnd, GWL_EXSTYLE, remove, add, positionFlags);
}

int CWnd::GetDlgCtrlID() const {
  return ::GetDlgCtrlID(m_hWnd);
}

CWnd* CWnd::GetParent() const {
  return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::GetTopLevelParent() const {
  return FromHandle(GetAncestor(m_hWnd, GA_ROOT));
}

// -- Text ----------------------------------------------------------------------------------------

void CWnd::SetWindowText(const std::wstring& text) {
  SetWindowTextW(m_hWnd, text.c_str());
}

std::wstring CWnd::GetWindowText() const {
  return GetWindowTextString(m_hWnd);
}

void CWnd::SetFont(HFONT font, bool redraw) {
  SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), redraw);
}

HFONT CWnd::GetFont() const {
  const auto font = reinterpret_cast<HFONT>(SendMessage(WM_GETFONT));
  return font ? font : GetSystemFont();
}

// -- Place ---------------------------------------------------------------------------------------

CRect CWnd::GetWindowRect() const {
  CRect rect;
  ::GetWindowRect(m_hWnd, &rect);
  return rect;
}

CRect CWnd::GetClientRect() const {
  CRect rect;
  ::GetClientRect(m_hWnd, &rect);
  return rect;
}

void CWnd::ScreenToClient(POINT* point) const {
  ::ScreenToClient(m_hWnd, point);
}

void CWnd::ScreenToClient(RECT* rect) const {
  POINT corners[] = {{rect->left, rect->top}, {rect->right, rect->bottom}};
  MapWindowPoints(nullptr, m_hWnd, corners, 2);
  *rect = CRect(corners[0], corners[1]);
}

void CWnd::ClientToScreen(POINT* point) const {
  ::ClientToScreen(m_hWnd, point);
}

void CWnd::MoveWindow(const RECT& rect, bool repaint) {
  const CRect place(rect);
  ::MoveWindow(m_hWnd, place.left, place.top, place.Width(), place.Height(), repaint);
}

BOOL CWnd::SetWindowPos(HWND after, int x, int y, int width, int height, UINT flags) {
  return ::SetWindowPos(m_hWnd, after, x, y, width, height, flags);
}

void CWnd::CenterWindow() {
  ::CenterWindow(m_hWnd);
}

// -- Visibility, input, painting -----------------------------------------------------------------

BOOL CWnd::ShowWindow(int command) {
  return ::ShowWindow(m_hWnd, command);
}

BOOL CWnd::EnableWindow(BOOL enable) {
  return ::EnableWindow(m_hWnd, enable);
}

BOOL CWnd::IsWindowEnabled() const {
  return ::IsWindowEnabled(m_hWnd);
}

BOOL CWnd::IsWindowVisible() const {
  return ::IsWindowVisible(m_hWnd);
}

HWND CWnd::SetFocus() {
  return m_hWnd ? ::SetFocus(m_hWnd) : nullptr;
}

void CWnd::Invalidate(bool erase) {
  InvalidateRect(nullptr, erase);
}

void CWnd::InvalidateRect(const RECT* rect, bool erase) {
  if (m_hWnd) ::InvalidateRect(m_hWnd, rect, erase);
}

BOOL CWnd::RedrawWindow(const RECT* rect, HRGN region, UINT flags) {
  return m_hWnd && ::RedrawWindow(m_hWnd, rect, region, flags);
}

UINT_PTR CWnd::SetTimer(UINT_PTR id, UINT milliseconds) {
  return m_hWnd ? ::SetTimer(m_hWnd, id, milliseconds) : 0;
}

BOOL CWnd::KillTimer(UINT_PTR id) {
  return ::KillTimer(m_hWnd, id);
}

int CWnd::GetScrollPos(int bar) const {
  return ::GetScrollPos(m_hWnd, bar);
}

void CWnd::SetScrollPos(int bar, int position) {
  ::SetScrollPos(m_hWnd, bar, position);
}
