#pragma once

#include <functional>

#include "Button.h"
#include "platform/Classes.h"
#include "platform/VirtualKeys.h"
#include "support/FormTest.h"
#include "support/Printers.h"

namespace Wexa {

// A dialog that runs a step as the first message after it is shown.
class ScriptedDialog : public Dialog {
 public:
  using Dialog::Dialog;

  int FilterDone(int state) override { return filter ? filter(state) : state; }
  bool InitializeControls() override {
    if (step) {
      SetPreTranslateMessage([this](void* message) { return RunStep(message); });
      GetWndPtr()->PostMessage(kStep);
    }
    return initialize ? initialize() : true;
  }

  std::function<void()> step;
  std::function<int(int)> filter;
  std::function<bool()> initialize;

 private:
  static constexpr UINT kStep = WM_APP + 100;
  static constexpr int kPassOn = 2;

  int RunStep(void* message) {
    if (static_cast<MSG*>(message)->message != kStep) return kPassOn;
    const auto once = step;
    once();
    return 1;
  }
};

class DialogTest : public FormTest {
 protected:
  std::unique_ptr<ScriptedDialog> MakeScripted(const std::string& form, unsigned long style = 0,
                                               HWND parent = nullptr) {
    return std::make_unique<ScriptedDialog>(FileOf(form), parent, style, 1.0);
  }
  // A dialog that is shown modal, step by step.
  ScriptedDialog& Scripted(const std::string& form, unsigned long style = 0,
                           HWND parent = nullptr) {
    auto dialog = MakeScripted(form, style, parent);
    auto* scripted = dialog.get();
    dialog_ = std::move(dialog);
    return *scripted;
  }
  std::wstring FocusedName() {
    auto* focused = dialog_->GetFocusedCtrlPtr();
    return focused ? focused->GetName() : L"";
  }
  void Focus(const wchar_t* name) { dialog_->SetFocusToCtrl(&Find<BaseGUIObject>(name)); }
};

}  // namespace Wexa
