#pragma once

#include "window/WindowObject.h"

namespace core {

Window* CapturingWindow();
void ForgetCapture(const Window& window);

}  // namespace core
