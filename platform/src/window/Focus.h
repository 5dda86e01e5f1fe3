#pragma once

#include "window/WindowObject.h"

namespace core {

// Sends WM_KILLFOCUS and WM_SETFOCUS; null takes the focus away. Asks nothing else.
void ChangeFocus(Window* window);
Window* FocusedWindow();
void ForgetFocus(const Window& window);

}  // namespace core
