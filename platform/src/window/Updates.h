#pragma once

// What is to be painted. Recording it is cheap; the paint pass works out who is affected.

#include "window/WindowObject.h"

namespace core {

struct UpdateOptions {
  bool erase = true;
  bool deep = false;  // children too, even of a window that clips them
};

// `area` in unmirrored pixels from the window's top left corner. Nothing happens while it is
// hidden.
void Invalidate(Window& window, const PixelRegion& area, UpdateOptions options);
// The whole window with its frame and everything in it.
void InvalidateAll(Window& window);
// Its frame only.
void InvalidateFrame(Window& window);
// What lies behind a child that moves or goes.
void InvalidateBehind(Window& child);
// Marks the way from the top-level window to this one for the next paint pass.
void MarkDirty(Window& window);

}  // namespace core
