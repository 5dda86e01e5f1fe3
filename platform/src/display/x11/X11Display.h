#pragma once

// The display on an X server.

#include <memory>

#include "display/Display.h"

namespace display {

// Connects to the server that the environment's DISPLAY names. Throws std::runtime_error naming it
// when none answers, or when it has no 24-bit true colour.
std::unique_ptr<Display> OpenX11Display();

}  // namespace display
