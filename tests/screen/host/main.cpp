// A host for tests: shows a form, takes files on its "name" and names them as errors, and shows a
// balloon there when "twin" is clicked.

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

}  // namespace

int main(int, char** arguments) try {
  std::setlocale(LC_ALL, "");
  Host(arguments[1]).DoModal();
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
