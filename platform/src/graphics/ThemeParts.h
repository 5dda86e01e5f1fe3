#pragma once

#include "platform/Geometry.h"
#include "platform/Theme.h"

// What several themed parts are made of.
namespace Theme {

// Thickness of borders and lines.
inline int LineWidth() {
  return ScaleUnits(1);
}

// A filled area with its border inside the rectangle, square for radius 0.
void DrawBox(Painter& painter, const RECT& rect, int radius, COLORREF face, COLORREF border,
             int thickness);
// Text and glyph colour of a part that has no colour of its own for its states.
COLORREF InkColor(const ControlState& state, const ControlPalette& palette);

}  // namespace Theme
