// The classes of the standard controls.

#include "controls/ButtonGeometry.h"
#include "controls/EditControl.h"
#include "controls/StaticControl.h"
#include "platform/Classes.h"
#include "platform/ControlConstants.h"

namespace {

LPARAM Param(const std::wstring& text) {
  return reinterpret_cast<LPARAM>(text.c_str());
}

}  // namespace

// -- CStatic -------------------------------------------------------------------------------------

BOOL CStatic::Create(const std::wstring& text, DWORD style, const RECT& rect, CWnd* parent,
                     UINT id) {
  return CreateEx(0, WC_STATIC, text.c_str(), style | WS_CHILD, rect, parent, id);
}

SIZE CStatic::GetIdealSize(int width) const {
  return StaticControl::IdealSize(m_hWnd, width);
}

// -- CButton -------------------------------------------------------------------------------------

BOOL CButton::Create(const std::wstring& text, DWORD style, const RECT& rect, CWnd* parent,
                     UINT id) {
  return CreateEx(0, WC_BUTTON, text.c_str(), style | WS_CHILD, rect, parent, id);
}

int CButton::GetCheck() const {
  return static_cast<int>(SendMessage(BM_GETCHECK));
}

void CButton::SetCheck(int check) {
  SendMessage(BM_SETCHECK, static_cast<WPARAM>(check));
}

UINT CButton::GetState() const {
  return static_cast<UINT>(SendMessage(BM_GETSTATE));
}

DWORD CButton::GetButtonStyle() const {
  return GetStyle() & 0xFFFF;
}

void CButton::SetButtonStyle(DWORD style, bool redraw) {
  SendMessage(BM_SETSTYLE, style, redraw);
}

SIZE CButton::GetIdealSize() const {
  return ButtonGeometry::IdealSize(m_hWnd);
}

// -- CEdit ---------------------------------------------------------------------------------------

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
  return CreateEx(0, WC_EDIT, L"", style | WS_CHILD, rect, parent, id);
}

void CEdit::SetSel(int from, int to) {
  SendMessage(EM_SETSEL, static_cast<WPARAM>(from), to);
}

void CEdit::GetSel(int& from, int& to) const {
  DWORD start = 0;
  DWORD end = 0;
  SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  from = static_cast<int>(start);
  to = static_cast<int>(end);
}

void CEdit::ReplaceSel(const std::wstring& text) {
  SendMessage(EM_REPLACESEL, TRUE, Param(text));
}

void CEdit::SetReadOnly(bool readOnly) {
  SendMessage(EM_SETREADONLY, readOnly);
}

void CEdit::SetLimitText(UINT characters) {
  SendMessage(EM_LIMITTEXT, characters);
}

void CEdit::SetPasswordChar(wchar_t c) {
  SendMessage(EM_SETPASSWORDCHAR, static_cast<WPARAM>(c));
}

void CEdit::SetCueBanner(const std::wstring& text) {
  SendMessage(EM_SETCUEBANNER, TRUE, Param(text));
}

int CEdit::GetIdealHeight() const {
  return EditControl::IdealHeight(m_hWnd);
}
