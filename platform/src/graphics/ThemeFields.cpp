#include <algorithm>

#include "graphics/ThemeParts.h"

namespace Theme {

namespace {

constexpr SIZE kFieldPadding{5, 4};
constexpr int kArrowButtonWidth = 18;
constexpr int kArrowSize = 16;
constexpr int kSpinArrowSize = 12;

COLORREF FieldBorder(const ControlState& state, const ControlPalette& palette) {
  if (!state.enabled) return palette.disabledBorder;
  if (state.focused) return palette.accent;
  return state.hovered ? palette.hoverBorder : palette.border;
}

// A square box around the rectangle's centre, so that arrows keep their size in tall fields.
CRect CentredBox(const CRect& rect, int size) {
  int edge = std::min({size, rect.Width(), rect.Height()});
  int left = rect.left + (rect.Width() - edge) / 2;
  int top = rect.top + (rect.Height() - edge) / 2;
  return {left, top, left + edge, top + edge};
}

}  // namespace

SIZE FieldPadding() {
  return {ScaleUnits(kFieldPadding.cx), ScaleUnits(kFieldPadding.cy)};
}

int ArrowButtonWidth() {
  return ScaleUnits(kArrowButtonWidth);
}

void DrawField(Painter& painter, const RECT& rect, const ControlState& state,
               const ControlPalette& palette) {
  COLORREF face = state.enabled ? palette.face : palette.disabledFace;
  COLORREF border = FieldBorder(state, palette);
  int line = LineWidth();
  DrawBox(painter, rect, palette.radius, face, border, line);
  if (!state.focused || !state.enabled || palette.radius > 0) return;
  painter.FillRect(RECT{rect.left, rect.bottom - 2 * line, rect.right, rect.bottom}, border);
}

void DrawDropDownArrow(Painter& painter, const RECT& rect, const ControlState& state,
                       const ControlPalette& palette) {
  CRect box = CentredBox(rect, ScaleUnits(kArrowSize));
  painter.Arrow(box, ArrowDirection::Down, InkColor(state, palette));
}

void DrawSpinArrows(Painter& painter, const RECT& rect, const ControlState& state,
                    const ControlPalette& palette) {
  CRect area(rect);
  COLORREF color = InkColor(state, palette);
  int middle = area.top + area.Height() / 2;
  CRect upper(area.left, area.top, area.right, middle);
  CRect lower(area.left, area.bottom - upper.Height(), area.right, area.bottom);
  painter.Arrow(CentredBox(upper, ScaleUnits(kSpinArrowSize)), ArrowDirection::Up, color);
  painter.Arrow(CentredBox(lower, ScaleUnits(kSpinArrowSize)), ArrowDirection::Down, color);
}

}  // namespace Theme
