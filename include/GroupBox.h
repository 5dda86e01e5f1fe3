#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"

namespace Wexa {

// A titled frame around other widgets, whose parent it is.
class WEXA_API GroupBox : public BaseGUIObject {
 public:
  class impl;

  GroupBox();
  ~GroupBox() override;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  void SetTitle(const std::wstring& title);
  std::wstring GetTitle();

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
