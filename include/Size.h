#pragma once

#include <algorithm>

#include "WexaExport.h"
#include "platform/Geometry.h"

namespace Wexa {

// A width and a height. Sums wrap around as 32-bit integers.
class WEXA_API Size {
 public:
  // 0 by 0.
  constexpr Size() = default;
  constexpr Size(int width, int height) : width_(width), height_(height) {}
  // The same numbers as a native size.
  constexpr Size(const CSize& size) : width_(size.cx), height_(size.cy) {}

  // Whether they are pixels or 96-DPI units is said where sizes are given.
  constexpr int Width() const { return width_; }
  constexpr int Height() const { return height_; }
  constexpr void SetWidth(int width) { width_ = width; }
  constexpr void SetHeight(int height) { height_ = height; }

  // Component-wise.
  constexpr Size& operator+=(const Size& other) {
    width_ = Sum(width_, other.width_);
    height_ = Sum(height_, other.height_);
    return *this;
  }
  // The component-wise maximum.
  constexpr Size GetInflated(const Size& other) const {
    return {std::max(width_, other.width_), std::max(height_, other.height_)};
  }
  // The component-wise minimum.
  constexpr Size GetDeflated(const Size& other) const {
    return {std::min(width_, other.width_), std::min(height_, other.height_)};
  }
  constexpr bool operator==(const Size&) const = default;

 private:
  static constexpr int Sum(int a, int b) {
    return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
  }

  int width_ = 0;
  int height_ = 0;
};

}  // namespace Wexa
