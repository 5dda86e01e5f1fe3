// A settings dialog: its form is drawn in settings.ui, what it does is said here.

#include <wexa/Wexa.h>

#include <clocale>
#include <cstdio>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

struct Settings {
  std::wstring name = L"Ada";
  int fontSize = 11;
  bool lineNumbers = true;
};

// The widget that the form calls `name`.
template <typename Widget>
Widget& Find(Wexa::Dialog& dialog, const wchar_t* name) {
  auto widget = std::dynamic_pointer_cast<Widget>(dialog.GetElementByName(name));
  if (!widget) throw std::runtime_error("the form lacks a widget");
  return *widget;  // the dialog owns it
}

class SettingsDialog {
 public:
  explicit SettingsDialog(Settings& settings) : settings_(settings) {
    name_.SetText(settings_.name);
    fontSize_.SetValue(settings_.fontSize);
    lineNumbers_.SetCheck(settings_.lineNumbers ? WexaUtils::Checked : WexaUtils::Unchecked);

    dialog_.Initialized.Connect([this] { AskForName(); });  // from here on there are windows
    name_.TextChanged.Connect([this](const std::wstring&) { AskForName(); });
    ok_.Clicked.Connect([this] { Accept(); });
    box_.GetButton(Wexa::StandardButton::Cancel)->Clicked.Connect([this] {
      dialog_.Done(Wexa::Dialog::Rejected);
    });
  }

  bool Run() { return dialog_.DoModal() == Wexa::Dialog::Accepted; }

 private:
  void AskForName() {
    const bool hasName = !name_.GetText().empty();
    ok_.Enable(hasName, true);
    message_.SetText(hasName ? L"" : L"Please enter a name.");
  }

  void Accept() {
    settings_.name = name_.GetText();
    settings_.fontSize = fontSize_.GetValue();
    settings_.lineNumbers = lineNumbers_.GetCheck() == WexaUtils::Checked;
    dialog_.Done(Wexa::Dialog::Accepted);
  }

  Settings& settings_;
  Wexa::Dialog dialog_{L"settings.ui", nullptr, 0, 1.0};
  Wexa::Edit& name_ = Find<Wexa::Edit>(dialog_, L"nameEdit");
  Wexa::SpinEdit& fontSize_ = Find<Wexa::SpinEdit>(dialog_, L"fontSizeSpin");
  Wexa::CheckBox& lineNumbers_ = Find<Wexa::CheckBox>(dialog_, L"lineNumbersCheck");
  Wexa::ButtonBox& box_ = Find<Wexa::ButtonBox>(dialog_, L"buttonBox");
  Wexa::Button& ok_ = *box_.GetButton(Wexa::StandardButton::OK);
  Wexa::Label& message_ = Find<Wexa::Label>(dialog_, L"messageLabel");
};

}  // namespace

int main() try {
  std::setlocale(LC_ALL, "");
  Settings settings;
  const bool accepted = SettingsDialog(settings).Run();
  std::printf("%s: %ls, %d pt, line numbers %s\n", accepted ? "Saved" : "Unchanged",
              settings.name.c_str(), settings.fontSize, settings.lineNumbers ? "on" : "off");
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "settings: %s\n", error.what());
  return 1;
}
