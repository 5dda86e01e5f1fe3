#include "controls/StandardControls.h"

#include "controls/ButtonControl.h"
#include "controls/DialogState.h"
#include "controls/EditControl.h"
#include "controls/StaticControl.h"
#include "platform/ControlConstants.h"
#include "platform/DialogManager.h"

namespace {

bool RegisterAll() {
  RegisterControl<ButtonControl>(WC_BUTTON, nullptr);
  RegisterControl<StaticControl>(WC_STATIC, nullptr);
  RegisterControl<EditControl>(WC_EDIT, IDC_IBEAM, true);
  const WNDCLASSW dialog{WC_DIALOG, DefDlgProcW, sizeof(DialogState*), nullptr};
  return RegisterClassW(&dialog) != 0;
}

}  // namespace

void RegisterStandardControls() {
  [[maybe_unused]] static const bool registered = RegisterAll();
}
