#pragma once

#include "platform/Types.h"

namespace core {

// The keys and mouse buttons as of the input message being handled.
void SetKeyDown(int virtualKey, bool down);
bool IsKeyDown(int virtualKey);
// The display's state, where a window starts to get input again; all keys up where it stops.
void ReadKeyState();
void ReleaseAllKeys();
// The MK_ bits of a mouse message.
WPARAM MouseKeys();

}  // namespace core
