#pragma once

#include <optional>

#include "display/Display.h"
#include "platform/Window.h"

namespace core {

// The message of a key record for the focused window, else the active one; none without either.
std::optional<MSG> KeyMessage(const display::Input& input);
// Whether the latest input came from the keyboard.
bool WasKeyboardUsedLast();
void NoteMouseUsed();

}  // namespace core
