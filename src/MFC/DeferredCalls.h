#pragma once

#include <cstdint>

#include "platform/WindowMessages.h"

namespace Wexa {

// Carries the token of a posted call as its first parameter.
inline constexpr UINT kDeferredCallMessage = WM_APP + 1;

// Runs the posted call of a token once. Nothing happens when its owner is gone.
void RunDeferredCall(std::uintptr_t token);

}  // namespace Wexa
