#pragma once

#include "window/WindowObject.h"

namespace core {

// Notes a press; true when it makes a double click with the one before: same window and button,
// soon enough and near enough.
bool NoteClick(const Window& window, const display::Input& press);
void ForgetClick(const Window& window);

}  // namespace core
