#include "graphics/Canvas.h"

#include <pixman.h>

#include <algorithm>
#include <cstdint>

namespace {

constexpr std::int64_t kFarthest = 1 << 24;  // beyond any surface

LONG Limited(std::int64_t coordinate) {
  return static_cast<LONG>(std::clamp(coordinate, -kFarthest, kFarthest));
}

std::uint32_t PixelOf(COLORREF color) {
  return 0xFF000000u | static_cast<std::uint32_t>(GetRValue(color)) << 16 |
         static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
}

// Calls paint(rect) for each rectangle of the part that may be painted.
template <typename Paint>
void ForEachVisible(const Surface& surface, std::span<const RECT> allowed, const CRect& rect,
                    Paint paint) {
  CRect inside = rect.Intersected(CRect(0, 0, surface.Width(), surface.Height()));
  if (inside.IsEmpty() || !surface.Pixels()) return;
  for (const RECT& part : allowed) {
    CRect visible = inside.Intersected(part);
    if (!visible.IsEmpty()) paint(visible);
  }
}

std::uint32_t* PixelRow(const Surface& surface, int y) {
  return surface.Pixels() + static_cast<std::ptrdiff_t>(y) * (surface.Stride() / 4);
}

// Two 8-bit channels at a time, 16 bits apart.
std::uint32_t MixPair(std::uint32_t below, std::uint32_t above, std::uint32_t alpha) {
  std::uint32_t sum = below * (255 - alpha) + above * alpha + 0x800080u;
  return ((sum + ((sum >> 8) & 0xFF00FFu)) >> 8) & 0xFF00FFu;
}

void Blend(std::uint32_t& pixel, std::uint32_t color, std::uint32_t alpha) {
  std::uint32_t redBlue = MixPair(pixel & 0xFF00FFu, color & 0xFF00FFu, alpha);
  std::uint32_t green = MixPair((pixel >> 8) & 0xFFu, (color >> 8) & 0xFFu, alpha);
  pixel = 0xFF000000u | redBlue | (green & 0xFFu) << 8;
}

void FillOpaque(const Surface& surface, const CRect& rect, std::uint32_t pixel) {
  if (rect.Width() == 1) {
    for (int y = rect.top; y < rect.bottom; ++y) PixelRow(surface, y)[rect.left] = pixel;
    return;
  }
  pixman_fill(surface.Pixels(), surface.Stride() / 4, 32, rect.left, rect.top, rect.Width(),
              rect.Height(), pixel);
}

void FillBlended(const Surface& surface, const CRect& rect, std::uint32_t pixel, unsigned alpha) {
  for (int y = rect.top; y < rect.bottom; ++y) {
    std::uint32_t* row = PixelRow(surface, y);
    for (int x = rect.left; x < rect.right; ++x) Blend(row[x], pixel, alpha);
  }
}

// The mask's own origin lies at maskOrigin.
void BlendMask(const Surface& surface, const CRect& visible, const ShapeMask& mask,
               POINT maskOrigin, COLORREF color) {
  unsigned alpha = AlphaOf(color);
  std::uint32_t pixel = PixelOf(color);
  for (int y = visible.top; y < visible.bottom; ++y) {
    const std::uint8_t* coverage = mask.Row(y - maskOrigin.y) - maskOrigin.x;
    std::uint32_t* row = PixelRow(surface, y);
    for (int x = visible.left; x < visible.right; ++x) {
      if (coverage[x]) Blend(row[x], pixel, coverage[x] * alpha / 255);
    }
  }
}

}  // namespace

CRect ToSurface(const DeviceContext& context, const RECT& rect) {
  std::int64_t left = rect.left;
  std::int64_t right = rect.right;
  if (context.mirrorWidth >= 0) {
    left = std::int64_t{context.mirrorWidth} - rect.right;
    right = std::int64_t{context.mirrorWidth} - rect.left;
  }
  const POINT& origin = context.origin;
  return {Limited(left + origin.x), Limited(std::int64_t{rect.top} + origin.y),
          Limited(right + origin.x), Limited(std::int64_t{rect.bottom} + origin.y)};
}

void FillPixels(const DeviceContext& context, const CRect& rect, COLORREF color) {
  unsigned alpha = AlphaOf(color);
  if (alpha == 0 || !context.surface) return;
  std::uint32_t pixel = PixelOf(color);
  ForEachVisible(*context.surface, context.clip.Rects(), rect, [&](const CRect& visible) {
    if (alpha == 255) return FillOpaque(*context.surface, visible, pixel);
    FillBlended(*context.surface, visible, pixel, alpha);
  });
}

void FillMask(const DeviceContext& context, const ShapeMask& mask, const CRect& part, POINT place,
              COLORREF color) {
  if (!context.surface) return;
  CRect target = CRect(0, 0, part.Width(), part.Height()).Moved(place.x, place.y);
  POINT maskOrigin{place.x - part.left, place.y - part.top};
  ForEachVisible(*context.surface, context.clip.Rects(), target, [&](const CRect& visible) {
    BlendMask(*context.surface, visible, mask, maskOrigin, color);
  });
}

void FillMask(const Surface& surface, std::span<const RECT> allowed, const ShapeMask& mask,
              POINT place, COLORREF color) {
  CRect target = CRect(0, 0, mask.width, mask.height).Moved(place.x, place.y);
  ForEachVisible(surface, allowed, target,
                 [&](const CRect& visible) { BlendMask(surface, visible, mask, place, color); });
}
