// A program's test: a robot uses the dialog as a person would, on the screen in memory.

#include <wexa/Wexa.h>
#include <wexa/platform/VirtualKeys.h>
#include <wexa/testing/Robot.h>

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace {

using Wexa::Testing::Find;
using Wexa::Testing::Robot;

// What is tested: a dialog that ends only with a name.
class NameDialog : public Wexa::Dialog {
 public:
  NameDialog() : Dialog(L"name.ui", nullptr, 0, 1.0) {
    Find<Wexa::Button>(*this, L"okButton").Clicked.Connect([this] { Accept(); });
  }

  std::wstring accepted;

 private:
  void Accept() {
    accepted = Find<Wexa::Edit>(*this, L"nameEdit").GetText();
    if (accepted.empty()) {
      Find<Wexa::Label>(*this, L"messageLabel").SetText(L"Please enter a name.");
    } else {
      Done(Accepted);
    }
  }
};

void Expect(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
}

void TestAsksUntilThereIsAName() {
  NameDialog dialog;
  dialog.DoModeless(true);
  Robot robot;

  robot.Click(Find(dialog, L"okButton"));
  Expect(!Find<Wexa::Label>(dialog, L"messageLabel").GetText().empty(), "it asks for a name");

  robot.Click(Find(dialog, L"nameEdit"));
  robot.Type(L"Ada");
  robot.Key('A', {VK_CONTROL});
  robot.Type(L"Grace");
  robot.Key(VK_RETURN);
  Expect(dialog.accepted == L"Grace", "Return takes the name that replaced the first");
}

}  // namespace

int main() try {
  TestAsksUntilThereIsAName();
  std::puts("All tests passed.");
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "testing: %s\n", error.what());
  return 1;
}
