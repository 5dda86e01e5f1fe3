#include "classes/ClassLayer.h"
#include "classes/ModalRun.h"
#include "platform/ControlConstants.h"
#include "platform/DialogManager.h"

CDialogEx::~CDialogEx() {
  if (run_) run_->ForgetDialog();
}

BOOL CDialogEx::InitModalIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* owner) {
  if (!dialogTemplate || m_hWnd) return FALSE;
  template_ = dialogTemplate;
  owner_ = owner ? owner->GetSafeHwnd() : nullptr;
  return TRUE;
}

std::intptr_t CDialogEx::DoModal() {
  if (!template_ || m_hWnd || run_) return -1;
  ModalRun run(*this, GetAncestor(owner_, GA_ROOT));
  return run.Run(template_, FromHandle(owner_));
}

BOOL CDialogEx::CreateIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* owner) {
  if (!dialogTemplate || m_hWnd) return FALSE;
  const HWND parent = owner ? owner->GetSafeHwnd() : nullptr;
  const bool isChild = (dialogTemplate->style & WS_CHILD) != 0;
  const CreationScope scope(*this);
  return CreateDialogIndirectParamW(dialogTemplate, isChild ? parent : GetAncestor(parent, GA_ROOT),
                                    nullptr, 0) != nullptr;
}

void CDialogEx::EndDialog(int result) {
  if (run_) {
    run_->End(result);
  } else {
    ShowWindow(SW_HIDE);
  }
}

// -- Keys and focus ------------------------------------------------------------------------------

void CDialogEx::SetDefID(UINT id) {
  SendMessage(DM_SETDEFID, id);
}

UINT CDialogEx::GetDefID() const {
  return static_cast<UINT>(SendMessage(DM_GETDEFID));
}

void CDialogEx::NextDlgCtrl() {
  SendMessage(WM_NEXTDLGCTL, FALSE, FALSE);
}

void CDialogEx::GotoDlgCtrl(HWND control) {
  SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

// A dialog inside another one leaves the keys to the outer one.
BOOL CDialogEx::PreTranslateMessage(MSG* message) {
  const bool inside = (GetStyle() & WS_CHILD) != 0 &&
                      dynamic_cast<CDialogEx*>(FromHandlePermanent(GetAncestor(m_hWnd, GA_ROOT)));
  return !inside && IsDialogMessageW(m_hWnd, message);
}

// -- Messages ------------------------------------------------------------------------------------

LRESULT CDialogEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) return OnInitDialog();
  return CWnd::WindowProc(message, wParam, lParam);
}

BOOL CDialogEx::OnCommand(WPARAM wParam, LPARAM lParam) {
  if (HIWORD(wParam) != BN_CLICKED) return CWnd::OnCommand(wParam, lParam);
  switch (LOWORD(wParam)) {
    case IDOK: OnOK(); return TRUE;
    case IDCANCEL: OnCancel(); return TRUE;
    default: return CWnd::OnCommand(wParam, lParam);
  }
}

BOOL CDialogEx::OnInitDialog() {
  return TRUE;
}

void CDialogEx::OnOK() {
  EndDialog(IDOK);
}

void CDialogEx::OnCancel() {
  EndDialog(IDCANCEL);
}

int CDialogEx::ClosedResult() const {
  return IDCANCEL;
}
