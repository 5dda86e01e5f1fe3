#include "graphics/ThemeParts.h"

namespace Theme {

namespace {

constexpr int kCheckSize = 13;
constexpr int kCheckGap = 6;
constexpr int kPartialInset = 3;
constexpr int kDotInset = 4;
constexpr int kFocusInset = 3;
constexpr SIZE kButtonPadding{12, 4};

struct BoxColors {
  COLORREF face;
  COLORREF border;
};

BoxColors PlainColors(const ControlState& state, const ControlPalette& palette) {
  if (!state.enabled) return {palette.disabledFace, palette.disabledBorder};
  if (state.pressed) return {palette.pressedFace, palette.hoverBorder};
  if (state.hovered) return {palette.hoverFace, palette.hoverBorder};
  bool accented = state.isDefault || (state.focused && state.focusCue);
  return {palette.face, accented ? palette.accent : palette.border};
}

// A checked box or radio is filled with the accent.
BoxColors CheckedColors(const ControlState& state, const ControlPalette& palette) {
  if (!state.enabled) return PlainColors(state, palette);
  if (state.pressed) return {palette.pressedFace, palette.accent};
  return {palette.accent, palette.accent};
}

COLORREF MarkColor(const ControlState& state, const ControlPalette& palette) {
  if (!state.enabled) return palette.disabledText;
  return state.pressed ? palette.pressedText : palette.accentText;
}

}  // namespace

SIZE PushButtonPadding() {
  return {ScaleUnits(kButtonPadding.cx), ScaleUnits(kButtonPadding.cy)};
}

int CheckSize() {
  return ScaleUnits(kCheckSize);
}

int CheckGap() {
  return ScaleUnits(kCheckGap);
}

void DrawPushButton(Painter& painter, const RECT& rect, const ControlState& state,
                    const ControlPalette& palette) {
  BoxColors colors = PlainColors(state, palette);
  int thickness = state.enabled && state.isDefault ? 2 * LineWidth() : LineWidth();
  DrawBox(painter, rect, palette.radius, colors.face, colors.border, thickness);
  if (!state.focused || !state.focusCue) return;
  int inset = ScaleUnits(kFocusInset);
  painter.FocusRect(CRect(rect).Shrunk(inset, inset), InkColor(state, palette));
}

void DrawCheckBox(Painter& painter, const RECT& rect, const ControlState& state,
                  const ControlPalette& palette) {
  bool checked = state.check == 1;
  BoxColors colors = checked ? CheckedColors(state, palette) : PlainColors(state, palette);
  DrawBox(painter, rect, palette.radius, colors.face, colors.border, LineWidth());
  if (checked) return painter.CheckMark(rect, MarkColor(state, palette));
  if (state.check != 2) return;
  int inset = ScaleUnits(kPartialInset);
  COLORREF color = state.enabled ? palette.accent : palette.disabledText;
  painter.FillRect(CRect(rect).Shrunk(inset, inset), color);
}

void DrawRadioButton(Painter& painter, const RECT& rect, const ControlState& state,
                     const ControlPalette& palette) {
  bool checked = state.check == 1;
  BoxColors colors = checked ? CheckedColors(state, palette) : PlainColors(state, palette);
  painter.FillEllipse(rect, colors.border);
  painter.FillEllipse(CRect(rect).Shrunk(LineWidth(), LineWidth()), colors.face);
  if (!checked) return;
  int inset = ScaleUnits(kDotInset);
  painter.FillEllipse(CRect(rect).Shrunk(inset, inset), MarkColor(state, palette));
}

}  // namespace Theme
