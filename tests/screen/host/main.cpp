// A host for tests: shows a form, takes files on its "name" and names them as errors, and shows a
// balloon there when "twin" is clicked. With "ask" as second argument the form's "ok" ends the
// dialog, with "vanish" the first paint of its "name" destroys it; both tell what DoModal returned.

#include <wexa/Wexa.h>

#include <clocale>
#include <cstdio>
#include <exception>
#include <memory>
#include <string>

namespace {

bool TellFiles(Wexa::Event* event) {
  if (event->GetType() != Wexa::Event::Drop) return false;
  for (const std::wstring& file : static_cast<Wexa::DropEvent*>(event)->GetFilePaths())
    std::fprintf(stderr, "%ls\n", file.c_str());
  return true;
}

class Host : public Wexa::Dialog {
 public:
  explicit Host(const std::string& form)
      : Dialog(std::wstring(form.begin(), form.end()), nullptr, 0, 1.0) {}

 private:
  bool InitializeControls() override {
    name_->SetAcceptDrops(true);
    name_->SetEventProcedure(
        [](Wexa::BaseGUIObject*, Wexa::Event* event) { return TellFiles(event); });
    const auto twin = GetElementByName(L"twin");
    std::dynamic_pointer_cast<Wexa::RadioButton>(twin)->Clicked.Connect([this] { ShowBalloon(); });
    return true;
  }

  void ShowBalloon() {
    name_->ShowBalloonTipEx(L"Twin beds", L"Who sleeps in the other one?",
                            Wexa::BalloonTipIconType::Information, true, false);
  }

  const std::shared_ptr<Wexa::BaseGUIObject> name_ = GetElementByName(L"name");
};

using DialogPointer = std::unique_ptr<Wexa::Dialog>;

void EndByButton(DialogPointer& dialog) {
  const auto ok = std::dynamic_pointer_cast<Wexa::Button>(dialog->GetElementByName(L"ok"));
  ok->Clicked.Connect([&dialog] { dialog->Done(Wexa::Dialog::Accepted); });
}

void EndByPaint(DialogPointer& dialog) {
  dialog->GetElementByName(L"name")->SetEventProcedure(
      [&dialog](Wexa::BaseGUIObject*, Wexa::Event* event) {
        if (event->GetType() == Wexa::Event::Paint) dialog.reset();
        return false;
      });
}

void TellResult(const std::string& form, void (*end)(DialogPointer&)) {
  auto dialog =
      std::make_unique<Wexa::Dialog>(std::wstring(form.begin(), form.end()), nullptr, 0, 1.0);
  const auto name = std::dynamic_pointer_cast<Wexa::Edit>(dialog->GetElementByName(L"name"));
  end(dialog);
  const int result = dialog->DoModal();
  std::fprintf(stderr, "%d %ls\n", result, name->GetText().c_str());
}

}  // namespace

int main(int count, char** arguments) try {
  std::setlocale(LC_ALL, "");
  const std::string form = arguments[1];
  const std::string manner = count > 2 ? arguments[2] : "";
  if (manner == "ask") {
    TellResult(form, EndByButton);
  } else if (manner == "vanish") {
    TellResult(form, EndByPaint);
  } else {
    Host(form).DoModal();
  }
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
