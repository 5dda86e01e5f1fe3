#pragma once

#include "platform/Types.h"

namespace core {

// Told of each window that is being created, before its first message, so that whoever creates it
// can subclass it in time.
using CreationHook = void (*)(HWND window);

// Replaces the hook, null for none, and returns the former one.
CreationHook SetCreationHook(CreationHook hook);
void RunCreationHook(HWND window);

}  // namespace core
