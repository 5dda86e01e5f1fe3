#pragma once

// The display on an X server.

#include <memory>

#include "display/Display.h"

namespace display {

// Connects to the server that the environment's DISPLAY names. Throws std::runtime_error naming it
// when none answers, when it has no such screen, or none with true colour of 24 or 30 bits.
std::unique_ptr<Display> OpenX11Display();

}  // namespace display
