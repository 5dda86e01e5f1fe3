#pragma once

#include "Rect.h"
#include "WexaExport.h"
#include "platform/Region.h"

namespace Wexa {

enum class RegionType { Rectangular = 0, Elliptic = 1 };

// An area of pixels. Each region owns its native region; a copy owns one of its own.
class WEXA_API Region {
 public:
  // An empty rectangular region.
  Region();
  // A rectangle, or the ellipse within it. Any other type holds no area at all: set operations with
  // it give empty regions and comparisons are false.
  Region(int x, int y, int width, int height, RegionType type);
  Region(Rect rect, RegionType type);
  explicit Region(const CRgn& region);

  // Whether both cover the same pixels.
  bool operator==(const Region& other) const;

  // New regions; the operands stay as they are.
  Region Interselected(const Region& other) const;
  Region United(const Region& other) const;
  // What is in exactly one of the two.
  Region Xored(const Region& other) const;
  // This region without the other.
  Region Substracted(const Region& other) const;

  const CRgn& PlatformRegion() const { return region_; }

 private:
  Region Combined(const Region& other, int mode) const;

  CRgn region_;
};

}  // namespace Wexa
