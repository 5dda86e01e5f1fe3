#pragma once

#include <memory>

#include "BaseGUIObject.h"

namespace Wexa {

// A scroll bar of its own. It shows its value.
class WEXA_API ScrollBar : public BaseGUIObject {
 public:
  class impl;

  ScrollBar();
  ~ScrollBar() override;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // The value is kept within the range.
  void SetRange(int minimum, int maximum);
  void SetValue(int value);
  int GetValue() const;

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
