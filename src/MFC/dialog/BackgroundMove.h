#pragma once

#include "platform/Types.h"

namespace Wexa {

class BaseGUIObject;

// Lets the left button move a dialog that has no border by its background and its labels. Called
// with presses, moves and releases of the widget; the dialog gets a moving notice before each move.
void MoveByBackground(BaseGUIObject& widget, HWND window, UINT message);

}  // namespace Wexa
