#include "MFC/containers/SplitSizes.h"

#include <algorithm>

#include "layout/LayoutChain.h"

namespace Wexa {

void SplitSizes::GiveSizes(const std::vector<int>& sizes) {
  KeepAsWeights();
  std::size_t count = std::min(sizes.size(), panes.size());
  for (std::size_t i = 0; i < count; ++i) panes[i].weight = std::max(sizes[i], 0);
}

void SplitSizes::Arrange(int room) {
  std::vector<ChainSlot> slots(panes.size());
  for (std::size_t i = 0; i < panes.size(); ++i) {
    const SplitPane& pane = panes[i];
    ChainSlot& slot = slots[i];
    slot.empty = pane.hidden;
    if (pane.hidden) continue;
    slot.minimumSize = pane.minimum;
    slot.maximumSize = std::max(pane.maximum, pane.minimum);
    const int weight = pane.weight >= 0 ? pane.weight : pane.hint;
    slot.sizeHint = std::max(given_ ? weight : pane.hint, pane.minimum);
    slot.stretch = given_ ? weight : pane.stretch;
    slot.expansive = pane.expansive;
  }
  Distribute(slots, 0, std::max(room, 0), 0);
  for (std::size_t i = 0; i < panes.size(); ++i)
    panes[i].size = panes[i].hidden ? 0 : slots[i].size;
}

SplitSizes::Indices SplitSizes::Visible(std::size_t from, std::size_t to) const {
  Indices visible;
  for (std::size_t i = from; i < to; ++i)
    if (!panes[i].hidden) visible.push_back(i);
  return visible;
}

int SplitSizes::Shrink(const Indices& nearestFirst, int by, bool apply) {
  int left = by;
  for (std::size_t i : nearestFirst) {
    int part = std::clamp(panes[i].size - panes[i].minimum, 0, left);
    if (apply) panes[i].size -= part;
    left -= part;
  }
  return by - left;
}

int SplitSizes::Grow(const Indices& nearestFirst, int by, bool apply) {
  int left = by;
  for (std::size_t i : nearestFirst) {
    int part = std::clamp(panes[i].maximum - panes[i].size, 0, left);
    if (apply) panes[i].size += part;
    left -= part;
  }
  return by - left;
}

int SplitSizes::MoveBorder(std::size_t paneBefore, int distance) {
  if (paneBefore + 1 >= panes.size()) return 0;
  Indices before = Visible(0, paneBefore + 1);
  std::reverse(before.begin(), before.end());
  Indices after = Visible(paneBefore + 1, panes.size());
  const Indices& giving = distance > 0 ? after : before;
  const Indices& taking = distance > 0 ? before : after;
  int wanted = distance > 0 ? distance : -distance;
  int moved = std::min(Shrink(giving, wanted, false), Grow(taking, wanted, false));
  if (moved == 0) return 0;
  Shrink(giving, moved, true);
  Grow(taking, moved, true);
  KeepAsWeights();
  return distance > 0 ? moved : -moved;
}

void SplitSizes::KeepAsWeights() {
  given_ = true;
  for (SplitPane& pane : panes)
    if (!pane.hidden) pane.weight = pane.size;
}

}  // namespace Wexa
