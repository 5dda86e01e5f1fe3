#pragma once

#include <optional>

#include "window/WindowObject.h"

namespace core {

// The pointer is now over this window, or over none: whoever asked to know is told that it left.
void NotePointerOver(const Window* window, POINT screen);
// When somebody waits for the pointer to rest, in milliseconds of the display's clock.
std::optional<std::uint64_t> NextHover();
void PostDueHover();

}  // namespace core
