#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"

namespace Wexa {

// A titled frame around other widgets, whose parent it is. They are disabled with it.
class WEXA_API GroupBox : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  GroupBox();
  ~GroupBox() override;

  // Fired with the new state when the user, or the host, switches a checkable box.
  CallbackList<bool> Toggled;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // "&" marks the mnemonic, which gives the focus to what is in the box.
  void SetTitle(const std::wstring& title);
  std::wstring GetTitle();
  enum class TitleAlignment { Left = 0, Center = 1, Right = 2 };
  // Where along the top edge the title stands; left unless told otherwise.
  void SetTitleAlignment(TitleAlignment alignment);

  // A checkable box has a check box for its title; unchecked, what is in it is disabled. What the
  // host disabled itself stays disabled when the box is checked again.
  void SetCheckable(bool checkable);
  bool IsCheckable() const;
  // Counts for checkable boxes. Checked at first.
  void SetChecked(bool checked);
  bool IsChecked() const;

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
