#pragma once

#include <memory>

#include "BaseGUIObject.h"

namespace Wexa {

class Button;

// The standard buttons of a dialog; values combine into a mask.
enum class StandardButton : unsigned {
  OK = 0x00000400,
  Yes = 0x00004000,
  No = 0x00010000,
  Abort = 0x00040000,
  Retry = 0x00080000,
  Ignore = 0x00100000,
  Cancel = 0x00400000,
  Reset = 0x04000000
};

// A row or column of standard buttons in their fixed order, their texts translated.
class WEXA_API ButtonBox : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  ButtonBox();
  // A box of the buttons whose bits are set.
  explicit ButtonBox(unsigned standardButtons);
  ~ButtonBox() override;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // Empty when the box has no such button.
  std::shared_ptr<Button> GetButton(StandardButton button);
  // A row, or a column when vertical. The box is laid out again.
  void SetOrientation(bool vertical);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
