#pragma once

#include <memory>

#include "BaseGUIObject.h"

namespace Wexa {

// A tree of rows. It shows its frame.
class WEXA_API TreeView : public BaseGUIObject {
 public:
  class impl;

  TreeView();
  ~TreeView() override;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
