#include "graphics/ThemeParts.h"

namespace Theme {

void DrawBox(Painter& painter, const RECT& rect, int radius, COLORREF face, COLORREF border,
             int thickness) {
  CRect inner = CRect(rect).Shrunk(thickness, thickness);
  if (radius > 0) {
    painter.FillRoundRect(rect, radius, border);
    if (!inner.IsEmpty()) painter.FillRoundRect(inner, radius - thickness, face);
    return;
  }
  painter.FrameRect(rect, border, thickness);
  if (!inner.IsEmpty()) painter.FillRect(inner, face);
}

COLORREF InkColor(const ControlState& state, const ControlPalette& palette) {
  return state.enabled ? palette.text : palette.disabledText;
}

UINT PrefixFormat(const ControlState& state) {
  return state.mnemonicCue ? 0 : DT_HIDEPREFIX;
}

}  // namespace Theme
