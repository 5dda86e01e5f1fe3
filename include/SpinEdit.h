#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"

namespace Wexa {

// A field for a whole number. It shows its value.
class WEXA_API SpinEdit : public BaseGUIObject {
 public:
  class impl;

  SpinEdit();
  ~SpinEdit() override;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // The value is kept within the range.
  void SetRange(int minimum, int maximum);
  void SetValue(int value);
  int GetValue() const;
  // Shown before and after the value.
  void SetPrefix(const std::wstring& prefix);
  void SetSuffix(const std::wstring& suffix);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
