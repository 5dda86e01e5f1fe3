#pragma once

#include <wexa/Wexa.h>

#include <stdexcept>
#include <string>

// The widgets in their states, a page for each family, and the skins to see them in.
class Gallery {
 public:
  // Throws what the form's dialog throws, and std::runtime_error for a form that lacks a widget.
  Gallery();

  void Run() { dialog_.DoModal(); }
  int Clicks() const { return clicks_; }
  // Writes what each page looks like, with widgets under the pointer, pressed and focused:
  // PREFIX-buttons.png and so on. Throws std::runtime_error for a file that cannot be written.
  void SavePictures(const std::string& prefix);

 private:
  // The widget that the form calls `name`.
  template <typename Widget>
  Widget& Find(const std::wstring& name) {
    auto widget = std::dynamic_pointer_cast<Widget>(dialog_.GetElementByName(name));
    if (!widget) throw std::runtime_error("the form lacks a widget");
    return *widget;  // the dialog owns it
  }
  template <typename Action>
  void OnClick(const wchar_t* name, Action action) {
    Find<Wexa::Button>(name).Clicked.Connect(action);
  }

  void SetSkin(Wexa::SkinMode mode) { dialog_.SetSkinMode(mode, true); }
  void ShowBalloon();
  void TurnStack();

  Wexa::Dialog dialog_{L"gallery.ui", nullptr, 0, 1.0};
  int clicks_ = 0;
};
