#pragma once

#include "window/WindowObject.h"

namespace core {

struct Hit {
  Window* window = nullptr;
  int part = HTNOWHERE;
};

// The window of the tree that takes mouse input at a screen point: hidden and disabled ones are
// passed over, and those that answer WM_NCHITTEST with HTTRANSPARENT.
Hit HitTest(Window& root, POINT screen);

}  // namespace core
