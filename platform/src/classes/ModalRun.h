#pragma once

#include <cstdint>

#include "platform/Classes.h"

// One running DoModal. It lives on DoModal's stack and may outlive the dialog object. When it goes,
// by return or by exception, the dialog's window is gone, the owner takes input again and has the
// activation and the focus back.
struct ModalRun {
  ModalRun(CDialogEx& dialog, HWND owner);
  ~ModalRun();
  ModalRun(const ModalRun&) = delete;
  ModalRun& operator=(const ModalRun&) = delete;

  // Creates and shows the window and pumps until the end; then what DoModal returns.
  std::intptr_t Run(const DLGTEMPLATE* dialogTemplate, CWnd* owner);
  // Hides the dialog and leaves the loop; of several calls the first counts.
  void End(std::intptr_t result);
  // The object is being deleted.
  void ForgetDialog();

 private:
  bool IsOver() const { return ended_ || !IsWindow(window_); }
  void Pump();
  void CloseUnseen();
  void EnableOwner();
  void Close();
  void RestoreFocus();

  CDialogEx* dialog_;
  HWND window_ = nullptr;
  HWND owner_;  // the top-level window that was disabled, if any
  HWND focus_;
  bool ended_ = false;
  bool wasClosed_ = false;  // asked to close because nobody sees it
  std::intptr_t result_ = -1;
};
