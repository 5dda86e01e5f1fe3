#include "graphics/GlyphMasks.h"

#include <algorithm>
#include <cmath>

#include "platform/Geometry.h"

namespace {

constexpr std::size_t kMaxBytes = 4 << 20;

CRect CoveredBounds(const ShapeMask& mask) {
  CRect bounds(mask.width, mask.height, 0, 0);
  for (int y = 0; y < mask.height; ++y) {
    for (int x = 0; x < mask.width; ++x) {
      if (mask.Row(y)[x] == 0) continue;
      bounds = CRect(std::min<int>(bounds.left, x), std::min<int>(bounds.top, y),
                     std::max<int>(bounds.right, x + 1), y + 1);
    }
  }
  return bounds.IsEmpty() ? CRect{} : bounds;
}

// Without the empty rows and columns around, which would cost time in every drawing.
GlyphMask Cropped(const ShapeMask& mask, POINT offset) {
  CRect bounds = CoveredBounds(mask);
  GlyphMask cropped{{bounds.Width(), bounds.Height(), {}},
                    {offset.x + bounds.left, offset.y + bounds.top}};
  for (int y = bounds.top; y < bounds.bottom; ++y) {
    const std::uint8_t* row = mask.Row(y);
    auto& coverage = cropped.mask.coverage;
    coverage.insert(coverage.end(), row + bounds.left, row + bounds.right);
  }
  return cropped;
}

}  // namespace

const GlyphMask& GlyphMasks::Get(unsigned glyph) {
  if (auto found = masks_.find(glyph); found != masks_.end()) return found->second;
  if (bytes_ > kMaxBytes) {
    masks_.clear();
    bytes_ = 0;
  }
  const GlyphMask& made = masks_.emplace(glyph, Rasterise(glyph)).first->second;
  bytes_ += made.mask.coverage.size();
  return made;
}

GlyphMask GlyphMasks::Rasterise(unsigned index) const {
  cairo_glyph_t glyph{index, 0, 0};
  cairo_text_extents_t ink;
  cairo_scaled_font_glyph_extents(font_, &glyph, 1, &ink);
  int left = static_cast<int>(std::floor(ink.x_bearing)) - 1;  // room for smoothed edges
  int top = static_cast<int>(std::floor(ink.y_bearing)) - 1;
  int right = static_cast<int>(std::ceil(ink.x_bearing + ink.width)) + 1;
  int bottom = static_cast<int>(std::ceil(ink.y_bearing + ink.height)) + 1;
  glyph.x = -left;
  glyph.y = -top;
  ShapeMask mask = RasteriseMask(right - left, bottom - top, [&](cairo_t* cairo) {
    cairo_set_scaled_font(cairo, font_);
    cairo_show_glyphs(cairo, &glyph, 1);
  });
  return Cropped(mask, {left, top});
}
