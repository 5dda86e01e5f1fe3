#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

enum class Shape { Ellipse, Ring, CheckMark, ArrowUp, ArrowDown, ArrowLeft, ArrowRight, Cross };

// How much of each pixel a shape covers, 0 to 255.
struct ShapeMask {
  int width;
  int height;
  std::vector<std::uint8_t> coverage;

  const std::uint8_t* Row(int y) const {
    return coverage.data() + static_cast<std::ptrdiff_t>(y) * width;
  }
};

// The shape filling a box of this size, rasterised at the first call. The thickness is a ring's;
// other shapes find their own. Valid until the next call.
const ShapeMask& GetShapeMask(Shape shape, int width, int height, int thickness = 0);
