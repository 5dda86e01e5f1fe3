#pragma once

#include "platform/Types.h"

namespace Wexa {

// A place in pixels, laid out like the native point.
struct Point {
  constexpr Point() = default;
  constexpr Point(int x_, int y_) : x(x_), y(y_) {}
  // The same place as a native point.
  explicit constexpr Point(const POINT& point) : x(point.x), y(point.y) {}

  // As a native point.
  constexpr POINT PlatformPoint() const { return {x, y}; }
  constexpr bool operator==(const Point&) const = default;

  // To the right and down from an origin that is said where points are given.
  int x = 0;
  int y = 0;
};

}  // namespace Wexa
