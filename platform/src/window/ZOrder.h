#pragma once

#include "window/WindowObject.h"

namespace core {

// Whether the window already stands where SetWindowPos with `after` would put it.
bool StandsAfter(Window& window, HWND after);
// Puts it there: HWND_TOP, HWND_BOTTOM or right behind a sibling. Owned windows stay before their
// owner and WS_EX_TOPMOST ones before all others.
void PlaceAfter(Window& window, HWND after);

}  // namespace core
