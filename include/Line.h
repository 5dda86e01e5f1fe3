#pragma once

#include <memory>

#include "BaseGUIObject.h"

namespace Wexa {

// A horizontal or vertical separator.
class WEXA_API Line : public BaseGUIObject {
 public:
  class impl;

  Line();
  ~Line() override;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // The colour of the line, slot 87 of the widget's skin.
  void SetLineColor(SkinManagerColor color);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
