#pragma once

#include <optional>

#include "platform/Window.h"

namespace core {

// The WM_TIMER of the timer that is due the longest; it starts anew.
std::optional<MSG> TakeDueTimer();
// When the next timer is due, in milliseconds of the display's clock.
std::optional<std::uint64_t> NextTimer();
void ForgetTimers(HWND window);

}  // namespace core
