#pragma once

#include <memory>

#include "BaseGUIObject.h"

namespace Wexa {

// An area for the host to paint on, in its paint event or after it.
class WEXA_API DrawElement : public BaseGUIObject {
 public:
  class impl;

  DrawElement();
  ~DrawElement() override;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
