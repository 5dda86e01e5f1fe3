#pragma once

#include <pixman.h>

#include <span>
#include <vector>

#include "platform/Geometry.h"

// A set of pixels, as bands of rectangles.
class PixelRegion {
 public:
  PixelRegion() { pixman_region32_init(&region_); }
  explicit PixelRegion(const RECT& rect);
  PixelRegion(const PixelRegion& other);
  PixelRegion(PixelRegion&& other) noexcept;
  PixelRegion& operator=(const PixelRegion& other);
  PixelRegion& operator=(PixelRegion&& other) noexcept;
  ~PixelRegion() { pixman_region32_fini(&region_); }
  static PixelRegion Ellipse(const RECT& bounds);

  bool IsEmpty() const;
  bool IsRect() const;
  CRect Bounds() const;
  bool Contains(POINT p) const;
  bool Contains(const RECT& rect) const;    // every pixel
  bool Intersects(const RECT& rect) const;  // any pixel
  std::span<const RECT> Rects() const;      // pixman boxes have the layout of RECT
  bool operator==(const PixelRegion& other) const;

  PixelRegion& Unite(const RECT& rect);
  PixelRegion& Unite(const PixelRegion& other);
  PixelRegion& Intersect(const RECT& rect);
  PixelRegion& Intersect(const PixelRegion& other);
  PixelRegion& Subtract(const RECT& rect);
  PixelRegion& Subtract(const PixelRegion& other);
  PixelRegion& Xor(const PixelRegion& other);
  PixelRegion& Move(int dx, int dy);
  void Clear();

 private:
  pixman_region32_t region_;
};
