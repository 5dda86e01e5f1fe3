#pragma once

#include <optional>

#include "platform/Window.h"

namespace core {

// Works through the display's records until one makes a message for a window.
std::optional<MSG> TakeInput();
// Tells all top-level windows (WM_SYSCOLORCHANGE) when the system's colours are others than before.
void BroadcastSchemeChange();

}  // namespace core
