#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"

namespace Wexa {

// A formatted text. It shows the text of its form.
class WEXA_API RichEdit : public BaseGUIObject {
 public:
  class impl;

  RichEdit();
  ~RichEdit() override;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  void SetText(const std::wstring& text);
  std::wstring GetText() const;

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
