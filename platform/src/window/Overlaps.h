#pragma once

#include "window/WindowObject.h"

namespace core {

// The pairs of visible children that overlap, ordered by the lower one from the bottom upwards.
// Worked out again only after a child was moved, shown, hidden or restacked.
const std::vector<Overlap>& OverlapsOf(Window& parent);

}  // namespace core
