#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"

namespace Wexa {

// A field for a whole number. It shows its value.
class WEXA_API SpinEdit : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  SpinEdit();
  ~SpinEdit() override;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // The value is kept within the range.
  void SetRange(int minimum, int maximum);
  void SetValue(int value);
  // As set, kept within the range.
  int GetValue() const;
  // Shown before and after the value.
  void SetPrefix(const std::wstring& prefix);
  void SetSuffix(const std::wstring& suffix);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
