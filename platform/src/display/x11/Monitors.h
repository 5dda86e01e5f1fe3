#pragma once

#include "platform/Types.h"

namespace display::x11 {

class Connection;

// The place of the primary monitor, or of the first one, or the whole screen where the server
// knows no monitors.
RECT PrimaryMonitor(Connection& connection);

}  // namespace display::x11
