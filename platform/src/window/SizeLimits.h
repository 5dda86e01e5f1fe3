#pragma once

#include <algorithm>

#include "window/WindowObject.h"

namespace core {

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
