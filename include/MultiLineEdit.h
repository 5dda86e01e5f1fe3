#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"

namespace Wexa {

// A text of several lines. It shows the text of its form.
class WEXA_API MultiLineEdit : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  MultiLineEdit();
  ~MultiLineEdit() override;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // Replaces the text. Lines end with a line feed.
  void SetText(const std::wstring& text);
  // The whole text, also after the window is gone.
  std::wstring GetText() const;

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
