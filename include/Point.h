#pragma once

#include "platform/Types.h"

namespace Wexa {

// A place in pixels, laid out like the native point.
struct Point {
  constexpr Point() = default;
  constexpr Point(int x_, int y_) : x(x_), y(y_) {}
  explicit constexpr Point(const POINT& point) : x(point.x), y(point.y) {}

  constexpr POINT PlatformPoint() const { return {x, y}; }
  constexpr bool operator==(const Point&) const = default;

  int x = 0;
  int y = 0;
};

}  // namespace Wexa
