#pragma once

#include "window/WindowObject.h"

namespace core {

// Beside the public SWP_ flags, told in WM_WINDOWPOSCHANGED: the client area kept its place or
// size.
inline constexpr UINT kNoClientSize = 0x0800;
inline constexpr UINT kNoClientMove = 0x1000;

// Moves, sizes, restacks, shows or hides with all the messages due. False when nothing changed.
bool Reposition(Window& window, WINDOWPOS request);
// Asks the window for its client area (WM_NCCALCSIZE).
void UpdateClientArea(Window& window);
// To the top of its siblings; a top-level window with those it owns.
void Raise(Window& window);
// WM_SIZE and WM_MOVE of the place that the window has.
void SendSize(Window& window);
void SendMove(Window& window);

}  // namespace core
