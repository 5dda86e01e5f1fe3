#pragma once

#include "graphics/RealizedFont.h"
#include "platform/Font.h"

// The font behind a handle; the system font for a null or stale one. Throws std::runtime_error
// where no font is installed.
RealizedFont& FontOf(HFONT font);
