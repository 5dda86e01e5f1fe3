#pragma once

#include "window/WindowObject.h"

namespace core {

// The window that stands for the whole screen: it has a place, but is never shown, moved, enabled
// or destroyed.
Window& Desktop();

}  // namespace core
