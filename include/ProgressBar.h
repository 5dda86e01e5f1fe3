#pragma once

#include <memory>

#include "BaseGUIObject.h"

namespace Wexa {

// A bar that shows how far something has come.
class WEXA_API ProgressBar : public BaseGUIObject {
 public:
  class impl;

  ProgressBar();
  ~ProgressBar() override;

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
