#pragma once

#include "window/WindowObject.h"

namespace core {

// Which surface has the display's focus. What a display reports may be older than what the core has
// asked for since; following such reports would move the focus to and fro.

// Asks for the focus unless the surface has it or is about to get it.
void RequestDisplayFocus(display::SurfaceId id);
// Notes a report; true when it is news that the activation has to follow.
bool NoteFocused(display::SurfaceId id);
bool NoteUnfocused(display::SurfaceId id);
void ForgetDisplayFocus(display::SurfaceId id);

}  // namespace core
