#pragma once

#include "window/HitTest.h"

namespace core {

// Lets the window under the pointer choose the cursor (WM_SETCURSOR).
void AskForCursor(const Hit& hit, UINT mouseMessage);
// The default choice: the parent's first, then that of the window's class or of the frame's part.
LRESULT ChooseCursor(Window& window, WPARAM under, LPARAM hitAndMessage);

}  // namespace core
