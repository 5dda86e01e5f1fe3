#pragma once

#include <cstdint>

#include "platform/WindowMessages.h"

namespace Wexa {

class BaseGUIObject;

// Carries the token of a posted call as its first parameter.
inline constexpr UINT kDeferredCallMessage = WM_APP + 1;

// From now on, or no longer, calls for the widget are posted to this window.
void AddReceiver(BaseGUIObject* receiver, HWND window);
void RemoveReceiver(BaseGUIObject* receiver, HWND window);
// Runs the widget's posted call of a token once. Nothing happens when its owner is gone.
void RunDeferredCall(BaseGUIObject* receiver, std::uintptr_t token);

}  // namespace Wexa
