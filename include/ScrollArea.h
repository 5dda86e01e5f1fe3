#pragma once

#include <memory>

#include "BaseGUIObject.h"

namespace Wexa {

// A framed view of a content widget, which fills it or, when it would like more room, is scrolled:
// by two bars, the wheel, arrow and page keys that nothing inside takes, and to whatever gets the
// focus.
class WEXA_API ScrollArea : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  ScrollArea();
  ~ScrollArea() override;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // Not owned; null for none.
  void SetContent(BaseGUIObject* content);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
