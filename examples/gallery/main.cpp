// A gallery: the widgets in their states, and the skins to see them in.

#include <wexa/Wexa.h>

#include <clocale>
#include <cstdio>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

using Wexa::SkinMode;

class Gallery {
 public:
  Gallery() {
    // Colours by key, as a host would read them from a file of its own.
    Wexa::InitSkinColorByMap(
        Wexa::SkinMap::Inputs,
        {{L"Active_BG", 0xE8F4F0UL}, {L"Input_BG", 0xFFFFFFUL}, {L"Accent_color", 0x5A7A10UL}});
    OnClick(L"light", [this] { dialog_.SetSkinMode(SkinMode::Default, true); });
    OnClick(L"dark", [this] { dialog_.SetSkinMode(SkinMode::Dark, true); });
    OnClick(L"colored", [this] { dialog_.SetSkinMode(SkinMode::XML, true); });
    OnClick(L"balloon", [this] { ShowBalloon(); });
    OnClick(L"close", [this] { dialog_.Done(Wexa::Dialog::Accepted); });
    OnClick(L"push", [this] { ++clicks_; });
  }

  void Run() { dialog_.DoModal(); }
  int Clicks() const { return clicks_; }

 private:
  template <typename Action>
  void OnClick(const wchar_t* name, Action action) {
    auto button = std::dynamic_pointer_cast<Wexa::Button>(dialog_.GetElementByName(name));
    if (!button) throw std::runtime_error("the form lacks a button");
    button->Clicked.Connect(action);
  }

  void ShowBalloon() {
    if (auto edit = dialog_.GetElementByName(L"edit"))
      edit->ShowBalloonTipEx(L"A balloon", L"It points at its widget and goes with the next key.",
                             Wexa::BalloonTipIconType::Information, true, true);
  }

  Wexa::Dialog dialog_{L"gallery.ui", nullptr, 0, 1.0};
  int clicks_ = 0;
};

}  // namespace

int main() try {
  std::setlocale(LC_ALL, "");
  Gallery gallery;
  gallery.Run();
  std::printf("The push button was clicked %d times.\n", gallery.Clicks());
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "gallery: %s\n", error.what());
  return 1;
}
