#include "preview/PreviewWindow.h"

#include <algorithm>
#include <array>

#include "Button.h"
#include "ButtonBox.h"
#include "MFC/DialogImplMFC.h"
#include "Utf8.h"
#include "display/offscreen/OffscreenDisplay.h"
#include "platform/Classes.h"
#include "preview/FormFiles.h"
#include "preview/Preview.h"

namespace preview {
namespace {

using Wexa::Button;
using Wexa::ButtonBox;
using Wexa::Dialog;
using Wexa::StandardButton;

struct BoxButton {
  StandardButton button;
  Dialog::DoneState state;
};

struct TextButton {
  const wchar_t* text;
  Dialog::DoneState state;
};

constexpr std::array kBoxButtons = {
    BoxButton{StandardButton::OK, Dialog::Accepted},
    BoxButton{StandardButton::Yes, Dialog::Accepted},
    BoxButton{StandardButton::Cancel, Dialog::Rejected},
    BoxButton{StandardButton::No, Dialog::Rejected},
    BoxButton{StandardButton::Abort, Dialog::Rejected},
};

constexpr std::array kTextButtons = {
    TextButton{L"OK", Dialog::Accepted},
    TextButton{L"Close", Dialog::Rejected},
    TextButton{L"Cancel", Dialog::Rejected},
};

std::wstring WithoutMnemonic(std::wstring text) {
  std::erase(text, L'&');
  return text;
}

// The form's dialog with what a host would add for its buttons to end it.
class WindowDialog : public Dialog {
 public:
  WindowDialog(const std::wstring& file, std::optional<Wexa::Size> client, const Pages& pages)
      : Dialog(file, nullptr, 0, WexaUtils::GetScaleFactor()), client_(client), pages_(pages) {
    UseKeyMap(*this);
    for (const auto& element : GetImpl()->Elements()) Connect(*element.widget);
  }

  bool InitializeControls() override {
    ShowPages(*this, pages_);
    if (!client_) return true;
    GetImpl()->ResizeClient(client_->Width(), client_->Height());
    GetWndPtr()->CenterWindow();
    return true;
  }

 private:
  void Connect(Wexa::BaseGUIObject& widget) {
    if (auto* box = dynamic_cast<ButtonBox*>(&widget)) ConnectBox(*box);
    if (auto* button = dynamic_cast<Button*>(&widget)) ConnectByText(*button);
  }

  void ConnectBox(ButtonBox& box) {
    for (const auto& [which, state] : kBoxButtons)
      if (auto button = box.GetButton(which)) EndWith(*button, state);
  }

  void ConnectByText(Button& button) {
    const std::wstring text = WithoutMnemonic(button.GetText());
    const auto* known = std::ranges::find(kTextButtons, text, &TextButton::text);
    if (known != kTextButtons.end()) EndWith(button, known->state);
  }

  void EndWith(Button& button, DoneState state) {
    button.Clicked.Connect([this, state] { Done(state); });
  }

  std::optional<Wexa::Size> client_;
  const Pages& pages_;
};

}  // namespace

void OpenDisplay() {
  display::Current();
}

bool IsOffscreen() {
  return dynamic_cast<display::OffscreenDisplay*>(&display::Current()) != nullptr;
}

void ShowInWindow(const std::string& file, std::optional<Wexa::Size> client,
                  const std::map<std::string, int>& pages) {
  WindowDialog(LibraryPath(file), client, pages).DoModal();
}

}  // namespace preview
