#pragma once

#include "window/WindowObject.h"

namespace core {

// Paints what is due in the window and below it and presents what changed. True when something was.
bool PaintTree(Window& window);
// Whether a visible window has something to paint.
bool IsPaintDue();
// Hands the painted areas of a top-level window to the display.
bool PresentDamage(Window& root);

}  // namespace core
