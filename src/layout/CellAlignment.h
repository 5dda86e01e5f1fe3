#pragma once

#include <cstdint>

#include "Rect.h"

namespace Wexa {

class LayoutItem;

// What an item takes of a cell: where it is aligned, no more than it prefers.
Size SizeInCell(LayoutItem& item, Size cell, const Size& preferred);

// The place of something of that size in a cell, by an item's alignment. Where that says nothing of
// an axis, it begins at the cell's left edge and lies in the middle of its height.
Rect AlignedInCell(const Rect& cell, const Size& size, std::uint32_t alignment);

}  // namespace Wexa
