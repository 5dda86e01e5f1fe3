#pragma once

#include "Orientation.h"
#include "Point.h"
#include "Rect.h"
#include "Size.h"
#include "SizePolicy.h"

namespace Wexa {

// Values along one axis, so that a rule is written once for both. An axis is Horizontal or
// Vertical.

constexpr Orientation AcrossOf(Orientation axis) {
  return axis == Orientation::Horizontal ? Orientation::Vertical : Orientation::Horizontal;
}

constexpr int Along(Orientation axis, const Size& size) {
  return axis == Orientation::Horizontal ? size.Width() : size.Height();
}

constexpr SizePolicy::Policy PolicyAlong(Orientation axis, const SizePolicy& policy) {
  return axis == Orientation::Horizontal ? policy.GetHorizontalPolicy()
                                         : policy.GetVerticalPolicy();
}

constexpr int StretchAlong(Orientation axis, const SizePolicy& policy) {
  return axis == Orientation::Horizontal ? policy.GetHorizontalStretch()
                                         : policy.GetVerticalStretch();
}

constexpr Size SizeFrom(Orientation axis, int along, int across) {
  return axis == Orientation::Horizontal ? Size(along, across) : Size(across, along);
}

// A rectangle between edges, which unlike a width cannot overflow.
constexpr Rect RectFromEdges(int left, int top, int right, int bottom) {
  return {Point{left, top}, Point{right, bottom}};
}

}  // namespace Wexa
