#pragma once

#include "Event.h"

namespace Wexa {

// The key of a native virtual-key code; None for a code that has none.
Event::Key KeyOfVirtualKey(int virtualKey);

}  // namespace Wexa
