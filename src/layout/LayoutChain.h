#pragma once

#include <span>

namespace Wexa {

// One item of a box, or one row or column of a grid, along the axis on which space is shared out.
struct ChainSlot {
  int stretch = 0;
  int sizeHint = 0;
  int maximumSize = 0;
  int minimumSize = 0;
  int spacing = 0;  // the gap after the slot
  bool expansive = false;
  bool empty = true;
  bool done = false;  // set while space is shared out
  int position = 0;   // result
  int size = 0;       // result

  // What the slot asks for: a slot with stretch takes its share from its minimum up.
  int SmartHint() const { return stretch > 0 ? minimumSize : sizeHint; }
};

// Shares `space` out among the slots, from `position` on, and fills in their positions and sizes.
// A spacing of 0 or more stands for the slots' own. Minimums are cut only when they do not all fit;
// hints are cut equally; extra space goes by stretch, else to the expansive slots, else to all.
void Distribute(std::span<ChainSlot> slots, int position, int space, int spacing = -1);

// The largest size across the chain, merged from the items that lie side by side there.
struct CrossMaximum {
  int maximum = 0;
  bool expansive = false;
  bool empty = true;

  void Merge(int itemMaximum, bool itemExpansive, bool itemEmpty);
};

}  // namespace Wexa
