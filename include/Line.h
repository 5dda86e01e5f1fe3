#pragma once

#include <memory>

#include "BaseGUIObject.h"

namespace Wexa {

// A horizontal or vertical separator.
class WEXA_API Line : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  Line();
  ~Line() override;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // The colour of the line, slot 87 of the widget's skin.
  void SetLineColor(SkinManagerColor color);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
