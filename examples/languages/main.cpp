// One dialog in five languages. The language can be changed while it is open.

#include <wexa/Wexa.h>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

constexpr const wchar_t* kComponent = L"languages";

struct Language {
  const wchar_t* code;
  const wchar_t* button;  // the form's name for it
  bool rightToLeft;
};

constexpr Language kLanguages[] = {{L"en-US", L"enButton", false},
                                   {L"de-DE", L"deButton", false},
                                   {L"ja-JP", L"jaButton", false},
                                   {L"ar-EG", L"arButton", true},
                                   {L"hi-IN", L"hiButton", false}};

// Texts, direction and decimal character: everything that depends on the language. Changing it
// forgets the texts of the one before, so they are loaded anew.
void Use(const Language& language) {
  Wexa::SetCurrentLanguage(language.code, false);
  Wexa::SetLayoutRTL(language.rightToLeft);
  auto& translator = Wexa::Translator::GetInstance();
  translator.LoadStrings(kComponent);
  for (const auto& diagnostic : translator.GetDiagnostics())
    std::fprintf(stderr, "%ls:%d: %ls\n", diagnostic.file.c_str(), diagnostic.line,
                 diagnostic.reason.c_str());
}

// The widget that the form calls `name`.
template <typename Widget>
Widget& Find(Wexa::Dialog& dialog, const wchar_t* name) {
  auto widget = std::dynamic_pointer_cast<Widget>(dialog.GetElementByName(name));
  if (!widget) throw std::runtime_error("the form lacks a widget");
  return *widget;  // the dialog owns it
}

// Shows the dialog in the current language. The language that was chosen in it, or null when it was
// closed otherwise.
const Language* ShowDialog() {
  Wexa::Dialog dialog(L"languages.ui", nullptr, 0, 1.0);
  const Language* chosen = nullptr;
  for (const Language& language : kLanguages) {
    Find<Wexa::Button>(dialog, language.button).Clicked.Connect([&] {
      chosen = &language;
      dialog.Done(Wexa::Dialog::Accepted);
    });
  }
  auto& box = Find<Wexa::ButtonBox>(dialog, L"buttonBox");
  for (const auto button : {Wexa::StandardButton::OK, Wexa::StandardButton::Cancel})
    box.GetButton(button)->Clicked.Connect([&] { dialog.Done(Wexa::Dialog::Rejected); });
  dialog.DoModal();
  return chosen;
}

const Language& FindLanguage(const std::string& code) {
  const auto found = std::ranges::find_if(kLanguages, [&](const Language& language) {
    return std::wstring(code.begin(), code.end()) == language.code;
  });
  if (found == std::end(kLanguages)) throw std::runtime_error("no language " + code);
  return *found;
}

}  // namespace

int main(int argc, char** argv) try {
  std::setlocale(LC_ALL, "");
  Wexa::SetWorkingDirPath((std::filesystem::current_path() / "").wstring());
  const Language* language = argc > 1 ? &FindLanguage(argv[1]) : &kLanguages[0];
  while (language) {
    Use(*language);
    language = ShowDialog();
  }
  const std::wstring text = Wexa::TrString(kComponent, L"chosen", L"No texts were found.");
  std::printf("%ls\n", text.c_str());
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "languages: %s\n", error.what());
  return 1;
}
