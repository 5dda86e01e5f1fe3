#pragma once

// Where windows lie. Inside a right-to-left window x runs from the right edge of its client area.

#include "window/WindowObject.h"

namespace core {

CRect ScreenRect(const Window& window);      // with its frame
CRect ClientOnScreen(const Window& window);  // the client area
POINT ToClient(const Window& window, POINT screen);
POINT ToScreen(const Window& window, POINT client);
// A rectangle of client coordinates in unmirrored pixels from the client area's left edge, and
// back.
CRect Mirrored(const Window& window, const CRect& rect);

// Places on the surface of the window's top-level window.
CRect OnSurface(const Window& window);
CRect ClientOnSurface(const Window& window);
// What ancestors let through of the window on the surface.
CRect VisibleOnSurface(const Window& window);

}  // namespace core
