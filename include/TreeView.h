#pragma once

#include <memory>

#include "BaseGUIObject.h"

namespace Wexa {

// A tree of rows. It shows its frame.
class WEXA_API TreeView : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  TreeView();
  ~TreeView() override;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
