#pragma once

#include <algorithm>
#include <cstdint>

#include "Size.h"
#include "WexaUtils.h"

namespace Wexa {

// Units of 96 DPI as pixels, truncated toward zero.
inline int ScaledUnits(int units) {
  return static_cast<int>(units * WexaUtils::GetScaleFactor());
}

// The maximum of an item that may grow without bound.
inline int LayoutSizeLimit() {
  return ScaledUnits(524287);
}

// The maximum of a widget for which none was set.
inline int WidgetSizeLimit() {
  return ScaledUnits(16777215);
}

// A sum of sizes as a coordinate. Forms may name any number; within this bound the difference of
// two coordinates is still an int.
constexpr int Saturated(std::int64_t value) {
  constexpr std::int64_t kLargest = (1 << 30) - 1;
  return static_cast<int>(std::clamp(value, -kLargest, kLargest));
}

constexpr int SaturatedSum(int a, int b) {
  return Saturated(std::int64_t{a} + b);
}

constexpr Size SaturatedSum(const Size& a, const Size& b) {
  return {SaturatedSum(a.Width(), b.Width()), SaturatedSum(a.Height(), b.Height())};
}

inline Size BoundedByLayoutLimit(const Size& size) {
  return size.GetDeflated({LayoutSizeLimit(), LayoutSizeLimit()});
}

}  // namespace Wexa
