#pragma once

// The frame that windows carry around their client area.

#include "window/WindowObject.h"

namespace core {

// The frame's width on each side.
RECT FrameInsets(DWORD style, DWORD exStyle);
// Leaves of a window's rectangle that of its client area.
void TakeFrameOff(const Window& window, RECT& rect);
// The part of the window under a screen point, as WM_NCHITTEST answers.
int FramePartAt(const Window& window, POINT screen);
// Draws what is due of the frame.
void PaintFrame(Window& window);
// The close button's look under the pointer.
void SetHoveredPart(Window& root, FramePart part);
void SetPressedPart(Window& root, FramePart part);
void InvalidateCaption(Window& root);

struct SizeLimits {
  SIZE minimum;
  SIZE maximum;

  // The minimum wins over a smaller maximum.
  SIZE Clamp(SIZE size) const {
    return {std::max(std::min(size.cx, maximum.cx), minimum.cx),
            std::max(std::min(size.cy, maximum.cy), minimum.cy)};
  }
};

// What the window answers to WM_GETMINMAXINFO; at least its frame with a close button.
SizeLimits LimitsOf(Window& window);

}  // namespace core
