#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"

namespace Wexa {

// A text in the look of a link, used by a click on it, Return or Space.
class WEXA_API HyperLinkElement : public BaseGUIObject {
 public:
  class impl;

  HyperLinkElement();
  ~HyperLinkElement() override;

  // Fired when the link is used.
  CallbackList<> Clicked;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  void SetText(const std::wstring& text);
  std::wstring GetText();

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
