#pragma once

#include "Dialog.h"
#include "MFC/base/InputWatch.h"
#include "platform/Classes.h"

namespace Wexa {

// The native dialog window.
class BaseDialogMFC : public CDialogEx, public InputWatch {
 public:
  explicit BaseDialogMFC(Dialog::impl& impl) : impl_(impl) {}
  Dialog::impl& Impl() { return impl_; }
  BOOL PreTranslateMessage(MSG* message) override;
  int ClosedResult() const override;
  void OnInputWithin(BaseGUIObject& widget, HWND window, UINT message) override;
  void OnUntakenInputWithin(BaseGUIObject& widget, HWND window, UINT message) override;

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  BOOL OnInitDialog() override;
  // Return does nothing when the dialog has no default button.
  void OnOK() override {}
  void OnCancel() override;

 private:
  Dialog::impl& impl_;
};

}  // namespace Wexa
