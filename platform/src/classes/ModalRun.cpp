#include "classes/ModalRun.h"

#include <cstdio>
#include <utility>

#include "classes/ClassLayer.h"
#include "classes/MessagePump.h"
#include "controls/DialogState.h"
#include "platform/Postponed.h"

namespace {

void TellThatNobodySees() {
  static bool told = false;
  if (std::exchange(told, true)) return;
  std::fputs(
      "A dialog was closed because nobody can see it: WEXA_DISPLAY asks for the display without a "
      "screen, or neither it nor DISPLAY names one.\n",
      stderr);
}

}  // namespace

ModalRun::ModalRun(CDialogEx& dialog, HWND owner)
    : dialog_(&dialog), owner_(IsWindowEnabled(owner) ? owner : nullptr), focus_(GetFocus()) {
  ClassLayer::SetRun(dialog, this);
  ReleaseCapture();
  if (owner_) EnableWindow(owner_, FALSE);
}

// Reached with the window still there only when an exception passes.
ModalRun::~ModalRun() {
  RunPostponing([this] { Close(); });
  if (dialog_) ClassLayer::SetRun(*dialog_, nullptr);
}

std::intptr_t ModalRun::Run(const DLGTEMPLATE* dialogTemplate, CWnd* owner) {
  const BOOL created = dialog_->CreateIndirect(dialogTemplate, owner);
  if (created && dialog_) window_ = dialog_->GetSafeHwnd();
  if (!IsOver() && !IsWindowVisible(window_)) ShowWindow(window_, SW_SHOW);
  while (!IsOver()) Pump();
  Close();
  return result_;
}

void ModalRun::Pump() {
  int exitCode = 0;
  const Pumped pumped = PumpOneMessage(exitCode);
  if (pumped == Pumped::Quit) PostQuitMessage(exitCode);
  if (pumped == Pumped::Message || IsOver()) return;
  if (pumped == Pumped::NothingLeft) return CloseUnseen();
  End(IDCANCEL);
}

// Nothing can happen any more: the dialog is closed as by its user, who is not there.
void ModalRun::CloseUnseen() {
  TellThatNobodySees();
  if (!std::exchange(wasClosed_, true)) {
    SendMessageW(window_, WM_CLOSE, 0, 0);
  } else {
    End(dialog_ ? dialog_->ClosedResult() : -1);
  }
}

// The owner takes input before the dialog hides, so that it is the one to be activated.
void ModalRun::End(std::intptr_t result) {
  if (std::exchange(ended_, true)) return;
  result_ = result;
  if (dialog_) window_ = dialog_->GetSafeHwnd();
  EnableOwner();
  if (DialogState* state = StateOfDialog(window_)) state->ended = true;
  ShowWindow(window_, SW_HIDE);
  PostMessageW(window_, WM_NULL, 0, 0);
}

void ModalRun::ForgetDialog() {
  dialog_ = nullptr;
}

void ModalRun::EnableOwner() {
  if (const HWND owner = std::exchange(owner_, nullptr)) EnableWindow(owner, TRUE);
}

void ModalRun::Close() {
  EnableOwner();
  if (dialog_) window_ = dialog_->GetSafeHwnd();
  if (IsWindow(window_)) DestroyWindow(window_);
  RestoreFocus();
}

// Unless someone chose another place for the focus meanwhile.
void ModalRun::RestoreFocus() {
  const HWND previous = std::exchange(focus_, nullptr);
  const HWND now = GetFocus();
  const HWND root = GetAncestor(previous, GA_ROOT);
  if (!IsWindowVisible(previous) || (now && now != root)) return;
  if (GetActiveWindow() != root) SetActiveWindow(root);
  SetFocus(previous);
}
