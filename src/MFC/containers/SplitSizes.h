#pragma once

#include <cstddef>
#include <vector>

namespace Wexa {

// A pane's wishes along the axis on which a splitter's room is shared out, in pixels.
struct SplitPane {
  int minimum = 0;
  int maximum = 0;
  int hint = 0;
  int stretch = 0;
  bool expansive = false;
  bool hidden = false;
  int weight = -1;  // the size its user or the host gave it; -1 for none
  int size = 0;     // result; 0 for a hidden pane
};

// How the panes of a splitter share their room. At first they do as in a box layout; once sizes
// were given they keep their proportions, within their limits.
class SplitSizes {
 public:
  std::vector<SplitPane> panes;

  // Sizes in the order of the panes; those left out keep theirs.
  void GiveSizes(const std::vector<int>& sizes);
  void Arrange(int room);
  // Moves the border between two panes as far as minimums and maximums allow, pushing panes further
  // off when the next ones are at their minimum. Returns by how much it moved.
  int MoveBorder(std::size_t paneBefore, int distance);

 private:
  using Indices = std::vector<std::size_t>;

  Indices Visible(std::size_t from, std::size_t to) const;
  int Shrink(const Indices& nearestFirst, int by, bool apply);
  int Grow(const Indices& nearestFirst, int by, bool apply);
  void KeepAsWeights();

  bool given_ = false;
};

}  // namespace Wexa
