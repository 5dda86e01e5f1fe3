#pragma once

#include <cairo.h>

#include <cstdint>
#include <memory>
#include <span>

#include "platform/Bitmap.h"

struct CairoSurfaceRelease {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using CairoSurfacePtr = std::unique_ptr<cairo_surface_t, CairoSurfaceRelease>;

// What an HBITMAP stands for.
class BitmapObject {
 public:
  // The pixels are the maker's to fill.
  BitmapObject(int width, int height, int depth);

  int Width() const { return width_; }
  int Height() const { return height_; }
  int Depth() const { return depth_; }
  std::span<const std::uint32_t> Pixels() const { return {pixels_.get(), Count()}; }
  // For changing them.
  std::span<std::uint32_t> Pixels();
  // The pixels as cairo draws them; kept until they may have changed. Null without memory.
  cairo_surface_t* Drawable();

 private:
  std::size_t Count() const {
    return static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_);
  }

  int width_;
  int height_;
  int depth_;
  std::unique_ptr<std::uint32_t[]> pixels_;
  CairoSurfacePtr drawable_;
};

bool IsPictureSize(std::int64_t width, std::int64_t height);
HBITMAP AddBitmap(std::unique_ptr<BitmapObject> bitmap);
// Null for a null or stale handle.
BitmapObject* FindBitmap(HBITMAP bitmap);
