#pragma once

#include "window/WindowObject.h"

namespace core {

// For the frame of a window that is asked to paint it; x mirrors in a right-to-left window.
HDC FrameContext(Window& window);
// Deletes the context and lets the display know what it may have changed.
void Finish(HDC dc);

}  // namespace core
