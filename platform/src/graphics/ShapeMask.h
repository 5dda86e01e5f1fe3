#pragma once

#include <cairo.h>

#include <cstddef>
#include <cstdint>
#include <functional>
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

// What drawing with an opaque source covers of a box of this size.
ShapeMask RasteriseMask(int width, int height, const std::function<void(cairo_t*)>& draw);

// The shape filling a box of this size, rasterised at the first call. The thickness is a ring's;
// other shapes find their own. Valid until the next call.
const ShapeMask& GetShapeMask(Shape shape, int width, int height, int thickness = 0);
