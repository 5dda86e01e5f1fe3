#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"
#include "WexaUtils.h"

namespace Wexa {

// A box that is checked, unchecked or, when it has three states, partially checked.
class WEXA_API CheckBox : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  CheckBox();
  ~CheckBox() override;

  // Fired by a click of the user, after the state changed.
  CallbackList<> Clicked;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // Does not fire Clicked.
  virtual void SetCheck(WexaUtils::CheckBoxStates state);
  // Also before the window exists and after it is gone.
  virtual WexaUtils::CheckBoxStates GetCheck();
  // Whether a click goes on to the third state.
  virtual void SetTristate(bool tristate);
  // The colour of the text in this box's skin.
  virtual void SetTextColor(SkinManagerColor color);

  // "&" marks the mnemonic.
  void SetText(const std::wstring& text);
  std::wstring GetText();
  // In 96-DPI units; negative radii are ignored.
  void SetBorderRadius(int radius);
  int GetBorderRadius() const;
  // Both have no effect.
  void SetWrap(bool wrap);
  void SetMinimumHeight(unsigned int height);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
