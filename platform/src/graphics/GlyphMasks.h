#pragma once

#include <cairo.h>

#include <cstddef>
#include <unordered_map>

#include "graphics/ShapeMask.h"
#include "platform/Types.h"

// What a glyph covers, and where that lies from the pen's place on the baseline.
struct GlyphMask {
  ShapeMask mask;
  POINT offset;
};

// The glyphs of a font, rasterised when they are first drawn. Drawing a line of kept masks is
// several times faster than handing the line to cairo.
class GlyphMasks {
 public:
  explicit GlyphMasks(cairo_scaled_font_t* font) : font_(font) {}

  // Valid until the next call.
  const GlyphMask& Get(unsigned glyph);

 private:
  GlyphMask Rasterise(unsigned glyph) const;

  cairo_scaled_font_t* font_;
  std::unordered_map<unsigned, GlyphMask> masks_;
  std::size_t bytes_ = 0;
};
