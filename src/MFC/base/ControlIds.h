#pragma once

#include "platform/Types.h"

namespace Wexa {

// Ids of controls: one counter for the process, from 3000 up.
UINT NextControlId();

}  // namespace Wexa
