#pragma once

#include <memory>

#include "BaseGUIObject.h"

namespace Wexa {

// A plain container inside a dialog: a page, a pane, or a group of widgets without a frame.
class WEXA_API ChildDialog : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  ChildDialog();
  ~ChildDialog() override;

  // As BaseGUIObject says.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;

  // Show with layout update.
  void SetVisible(bool visible);
  // 0x00RRGGBB.
  void SetBackgroundColor(int color);
  // The colour set, else that of the skin, as 0x00RRGGBB.
  int BackgroundColor();

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
