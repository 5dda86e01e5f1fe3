#pragma once

#include "window/WindowObject.h"

namespace core {

// Keyboard cues (focus frames, underlined mnemonics) stay hidden until the keyboard is used to get
// around. A change travels up to the top-level window and from there down to all.
LRESULT ChangeUiState(Window& window, WPARAM wParam);
LRESULT UpdateUiState(Window& window, WPARAM wParam);
void ShowKeyboardCues(Window& window);

}  // namespace core
