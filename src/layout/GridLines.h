#pragma once

#include <vector>

#include "Orientation.h"
#include "layout/LayoutChain.h"

namespace Wexa {

class Rescaling;

struct ItemSizes;

// The lines that a grid item covers along one axis, both ends included.
struct GridSpan {
  int first = 0;
  int last = 0;

  bool IsSingle() const { return first == last; }
};

// The columns or the rows of a grid: what was set for them, and the chain that shares out their
// space.
class GridLines {
 public:
  explicit GridLines(Orientation axis) : axis_(axis) {}

  int Count() const { return static_cast<int>(stretches_.size()); }
  void GrowTo(int count);
  void SetStretch(int line, int stretch) { stretches_[Index(line)] = stretch; }
  void SetMinimum(int line, int minimum) { minimums_[Index(line)] = minimum; }
  void Rescale(const Rescaling& rescale);

  const std::vector<ChainSlot>& Chain() const { return chain_; }
  const ChainSlot& Slot(int line) const { return chain_[Index(line)]; }

  // -- Set-up, in this order ----------------------------------------------------------------------

  // Empty lines, with what was set for them.
  void Reset();
  // An item that lies in one line, and one that spans several.
  void AddItem(int line, const ItemSizes& sizes);
  void AddSpan(const GridSpan& span);
  void WidenGap(int line, int spacing);
  // Makes the lines of a span large enough for its item.
  void FitSpan(const GridSpan& span, const ItemSizes& sizes);
  void Finish();

  // The same lines with other sizes, taken anew from the items: an item's minimum and hint.
  void ResetSizes();
  void RaiseSizes(int line, int minimum, int hint);

  struct Sums {
    int minimum = 0;
    int hint = 0;
    int maximum = 0;
  };
  // Of all lines, gaps included.
  Sums Total() const { return SumOf({0, Count() - 1}, chain_.empty() ? 0 : chain_.back().spacing); }
  bool IsExpansive() const;

 private:
  static std::size_t Index(int line) { return static_cast<std::size_t>(line); }
  Sums SumOf(const GridSpan& span, int lastGap) const;
  void DistributeSpan(const GridSpan& span, int space);
  void RaiseToPlaces(const GridSpan& span, int space);

  Orientation axis_;
  std::vector<ChainSlot> chain_;
  std::vector<int> stretches_;
  std::vector<int> minimums_;
};

}  // namespace Wexa
