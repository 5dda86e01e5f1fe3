#pragma once

#include <cairo.h>

#include <cstdint>

// 32-bit pixels with a drawing context over them. The memory is the display's.
class Surface {
 public:
  Surface(std::uint32_t* pixels, int width, int height, int strideBytes);
  ~Surface();
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  std::uint32_t* Pixels() const { return pixels_; }
  int Width() const { return width_; }
  int Height() const { return height_; }
  int Stride() const { return stride_; }
  cairo_t* Context() const { return context_; }

 private:
  std::uint32_t* pixels_;
  int width_;
  int height_;
  int stride_;
  cairo_surface_t* surface_;
  cairo_t* context_;
};
