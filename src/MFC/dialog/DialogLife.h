#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Dialog.h"
#include "platform/Classes.h"

namespace Wexa {

class Layout;

// How a dialog gets its native window, shows it, and ends.
class DialogLife {
 public:
  DialogLife(Dialog::impl& dialog, CDialogEx& window, CWnd* parent)
      : dialog_(dialog), window_(window), parent_(parent) {}

  void SetTitle(const std::wstring& title) { title_ = title; }
  // These throw WexaException when the native dialog cannot be made. One that a handler has ended,
  // or destroyed, before it was seen was made.
  int ShowModal();
  void ShowModeless(CWnd* parent, bool show);
  // Throws WexaException when there is no window.
  void End(int state);
  // Shares a client area of this size in pixels out anew; the window grows where that is too
  // small. Handlers of resizes may destroy the dialog.
  void Arrange(Size client);

  // -- From the native dialog

  // The answer to WM_INITDIALOG: whether the focus is the window system's to choose.
  bool OnInitDialog();
  void OnCloseRequest();

 private:
  DLGTEMPLATE& Template();
  void MakeTemplate();
  void SettleStyle();
  void SizeToClient();
  void CreateElements();
  void Centre();
  void ShowFirstTime();
  void ArrangeFirstTime();
  void ArrangeLayout(Layout& layout, Size client);
  void SettleFrame();
  bool TellHost();

  Dialog::impl& dialog_;
  CDialogEx& window_;
  CWnd* parent_;  // of a modal showing
  std::wstring title_;
  std::vector<std::uint32_t> template_;  // keeps the records aligned
  bool wasMade_ = false;                 // the native dialog, in this showing
};

}  // namespace Wexa
