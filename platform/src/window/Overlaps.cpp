#include "window/Overlaps.h"

#include <algorithm>

namespace core {
namespace {

using Index = std::uint32_t;

std::vector<Index> VisibleByTop(const std::vector<Window*>& children) {
  std::vector<Index> order;
  for (Index i = 0; i < children.size(); ++i)
    if (children[i]->IsVisible() && !children[i]->rect.IsEmpty()) order.push_back(i);
  std::sort(order.begin(), order.end(),
            [&](Index a, Index b) { return children[a]->rect.top < children[b]->rect.top; });
  return order;
}

// A line sweeps down over the children; `open` are those it crosses.
std::vector<Overlap> FindOverlaps(const std::vector<Window*>& children) {
  std::vector<Overlap> found;
  std::vector<Index> open;
  for (const Index i : VisibleByTop(children)) {
    const CRect& rect = children[i]->rect;
    std::erase_if(open, [&](Index o) { return children[o]->rect.bottom <= rect.top; });
    for (const Index o : open) {
      const CRect& other = children[o]->rect;
      if (rect.left < other.right && other.left < rect.right)
        found.push_back({std::max(i, o), std::min(i, o)});
    }
    open.push_back(i);
  }
  std::sort(found.begin(), found.end(),
            [](const Overlap& a, const Overlap& b) { return a.below > b.below; });
  return found;
}

}  // namespace

const std::vector<Overlap>& OverlapsOf(Window& parent) {
  if (!parent.overlapsKnown) {
    parent.overlaps = FindOverlaps(parent.children);
    parent.overlapsKnown = true;
  }
  return parent.overlaps;
}

}  // namespace core
