#pragma once

#include "window/WindowObject.h"

namespace core {

// A press on the frame until the button is let go: moving by the caption, sizing by a border (when
// the display has no window manager to do it), or holding the close button.
void BeginFrameTracking(Window& root, int part, POINT screen);
bool IsFrameTracked();
// Feeds a pointer record while the frame is tracked.
void TrackFrame(const display::Input& input);
// The capture went elsewhere or the window is gone.
void EndFrameTracking();

}  // namespace core
