#pragma once

// What a window tells the window manager about itself.

#include <xcb/xcb.h>

#include <string>

#include "display/Display.h"

namespace display::x11 {

class Connection;

// Makes the connection's helper stand for the whole program.
void WriteLeader(Connection& connection);
// Kind, program, protocols, no frame, and the window it stays in front of (0 for none).
void WriteIdentity(Connection& connection, xcb_window_t window, SurfaceKind kind,
                   xcb_window_t owner);
void WriteTitle(Connection& connection, xcb_window_t window, const std::wstring& title);
// A limit of 0 or less is none.
void WriteSizeHints(Connection& connection, xcb_window_t window, const RECT& place, SIZE minimum,
                    SIZE maximum);
void WriteModal(Connection& connection, xcb_window_t window, bool shown, bool modal);

}  // namespace display::x11
