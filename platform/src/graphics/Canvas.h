#pragma once

#include <span>

#include "graphics/DeviceContext.h"
#include "graphics/ShapeMask.h"
#include "platform/Geometry.h"

// Pixels of what a device context may paint; nothing outside its clip is touched. Rectangles and
// points are the surface's, but for those given to ToSurface.

// A window's rectangle on the surface, mirrored in a right-to-left window.
CRect ToSurface(const DeviceContext& context, const RECT& rect);
void FillPixels(const DeviceContext& context, const CRect& rect, COLORREF color);
// Paints `part` of the mask with that part's top-left corner at `place`.
void FillMask(const DeviceContext& context, const ShapeMask& mask, const CRect& part, POINT place,
              COLORREF color);

// The same for a whole mask, limited to the given rectangles.
void FillMask(const Surface& surface, std::span<const RECT> allowed, const ShapeMask& mask,
              POINT place, COLORREF color);

constexpr unsigned AlphaOf(COLORREF color) {
  return 255 - (color >> 24);
}
