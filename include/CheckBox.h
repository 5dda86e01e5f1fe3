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

  CheckBox();
  ~CheckBox() override;

  // Fired by a click of the user, after the state changed.
  CallbackList<> Clicked;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  virtual void SetCheck(WexaUtils::CheckBoxStates state);
  virtual WexaUtils::CheckBoxStates GetCheck();
  virtual void SetTristate(bool tristate);
  virtual void SetTextColor(SkinManagerColor color);

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
