#pragma once

#include "SizePolicy.h"
#include "layout/LayoutItem.h"

namespace Wexa {

// An empty box that pushes its neighbours apart.
class SpacerItem : public LayoutItem {
 public:
  // In device pixels.
  SpacerItem(int width, int height, SizePolicy::Policy horizontal, SizePolicy::Policy vertical)
      : size_(width, height), policy_(horizontal, vertical) {}

  Size SizeHint() override { return size_; }
  Size MinimumSize() override;
  Size MaximumSize() override;
  Orientation ExpandingDirections() override { return policy_.ExpandingDirections(); }
  void SetGeometry(const Rect& rect) override { geometry_ = rect; }
  Rect Geometry() override { return geometry_; }
  bool IsEmpty() override { return true; }
  void Rescale(const Rescaling& rescale) override;
  SpacerItem* AsSpacerItem() override { return this; }

 private:
  Size size_;
  SizePolicy policy_;
  Rect geometry_;
};

}  // namespace Wexa
