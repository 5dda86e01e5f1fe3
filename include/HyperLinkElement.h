#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"

namespace Wexa {

// A text in the look of a link, used by a click on it, Return or Space.
class WEXA_API HyperLinkElement : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  HyperLinkElement();
  ~HyperLinkElement() override;

  // Fired when the link is used.
  CallbackList<> Clicked;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  void SetText(const std::wstring& text);
  std::wstring GetText();

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
