#pragma once

#include <optional>

#include "display/Display.h"
#include "platform/Window.h"

namespace core {

// Tells the display whether a window under the files that are held there accepts them.
void AnswerDrag(const display::Input& input);
// WM_DROPFILES for the accepting window under the drop; none where no window accepts files.
std::optional<MSG> DropMessage(const display::Input& input);
// Frees drops that the window never took.
void ForgetDrops(HWND window);

}  // namespace core
