#pragma once

#include "platform/Types.h"

namespace Wexa {

class BaseGUIObject;

// What a top-level window hears of the input to the widgets in it. The native dialog fulfils it.
class InputWatch {
 public:
  // Before the widget gets it.
  virtual void OnInputWithin(BaseGUIObject& widget, HWND window, UINT message) = 0;
  // The host has left it to the default processing. The window still exists.
  virtual void OnUntakenInputWithin(BaseGUIObject& widget, HWND window, UINT message) = 0;

 protected:
  ~InputWatch() = default;
};

}  // namespace Wexa
