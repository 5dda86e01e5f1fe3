#pragma once

#include <optional>

#include "window/WindowObject.h"

namespace core {

// The message of a pointer record: finds the window, sets its cursor, activates it when pressed.
// None when the record concerns no window or was used up by a frame.
std::optional<MSG> PointerMessage(const display::Input& input);
void PointerLeft(display::SurfaceId surface);
void ForgetPointer(const Window& window);

}  // namespace core
