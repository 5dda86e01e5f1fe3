#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"

namespace Wexa {

// A text of several lines. It shows the text of its form.
class WEXA_API MultiLineEdit : public BaseGUIObject {
 public:
  class impl;

  MultiLineEdit();
  ~MultiLineEdit() override;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  void SetText(const std::wstring& text);
  std::wstring GetText() const;

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
