#include <algorithm>

#include "graphics/ThemeParts.h"
#include "platform/SystemColors.h"

namespace Theme {

namespace {

constexpr int kScrollBarWidth = 14;
constexpr int kScrollThumbInset = 4;
constexpr int kShortestThumb = 16;
constexpr int kSplitGrip = 24;
constexpr int kGroove = 4;
constexpr int kSliderThumb = 14;
constexpr int kSliderHole = 4;

// Not a number counts as nothing.
double Limited(double fraction) {
  return fraction > 0 ? std::min(fraction, 1.0) : 0;
}

int Part(double fraction, int length) {
  return static_cast<int>(Limited(fraction) * length + 0.5);
}

// The part of the rectangle from one place to another along its axis.
CRect Along(const CRect& rect, bool vertical, int from, int to) {
  return vertical ? CRect(rect.left, rect.top + from, rect.right, rect.top + to)
                  : CRect(rect.left + from, rect.top, rect.left + to, rect.bottom);
}

// The middle of the rectangle across its axis.
CRect Band(const CRect& rect, bool vertical, int thickness) {
  int across = (vertical ? rect.Width() : rect.Height()) - thickness;
  return Along(rect, !vertical, across / 2, across / 2 + thickness);
}

int Length(const CRect& rect, bool vertical) {
  return vertical ? rect.Height() : rect.Width();
}

COLORREF ThumbColor(const ControlState& state, const ControlPalette& palette) {
  if (!state.enabled) return palette.disabledBorder;
  if (state.pressed) return palette.accent;
  return state.hovered ? palette.hoverBorder : palette.border;
}

// Lighter than a disabled text, except in high contrast, which knows the system's colours only.
COLORREF FaintColor(const ControlPalette& palette) {
  constexpr int kHalf = 50;
  if (GetSystemScheme() == SystemScheme::HighContrast) return palette.disabledText;
  return MixColors(palette.disabledText, palette.background, kHalf);
}

}  // namespace

RECT ProgressPart(const RECT& rect, double from, double to, bool vertical) {
  CRect inner = CRect(rect).Shrunk(LineWidth(), LineWidth());
  int length = std::max(Length(inner, vertical), 0);
  int start = Part(from, length);
  int end = std::max(Part(to, length), start);
  return vertical ? Along(inner, true, length - end, length - start)
                  : Along(inner, false, start, end);
}

void DrawProgress(Painter& painter, const RECT& rect, double from, double to, bool vertical,
                  const ControlPalette& palette) {
  DrawBox(painter, rect, 0, palette.face, palette.border, LineWidth());
  if (CRect(rect).Shrunk(LineWidth(), LineWidth()).IsEmpty()) return;
  painter.FillRect(ProgressPart(rect, from, to, vertical), palette.accent);
}

int SliderThumbLength() {
  return ScaleUnits(kSliderThumb);
}

void DrawSlider(Painter& painter, const RECT& rect, double fraction, bool vertical,
                const ControlState& state, const ControlPalette& palette) {
  int thumb = ScaleUnits(kSliderThumb);
  int groove = ScaleUnits(kGroove);
  CRect band = Band(rect, vertical, thumb);
  int length = Length(band, vertical);
  int room = std::max(length - thumb, 0);
  int start = vertical ? room - Part(fraction, room) : Part(fraction, room);
  int middle = start + thumb / 2;
  CRect track = Band(rect, vertical, groove);
  COLORREF accent = state.enabled ? palette.accent : FaintColor(palette);
  painter.FillRoundRect(track, groove / 2, state.enabled ? palette.border : palette.disabledBorder);
  CRect done = vertical ? Along(track, true, middle, length) : Along(track, false, 0, middle);
  painter.FillRoundRect(done, groove / 2, accent);
  CRect knob = Along(band, vertical, start, start + thumb);
  painter.FillEllipse(knob, accent);
  int hole = ScaleUnits(state.hovered || state.pressed ? kSliderHole - 1 : kSliderHole);
  painter.FillEllipse(knob.Shrunk(hole, hole), palette.accentText);
  if (state.focused && state.focusCue) painter.FocusRect(rect, InkColor(state, palette));
}

int ScrollBarWidth() {
  return ScaleUnits(kScrollBarWidth);
}

int ShortestScrollThumb() {
  return ScaleUnits(kShortestThumb);
}

void DrawScrollThumb(Painter& painter, const RECT& rect, bool vertical, const ControlState& state,
                     const ControlPalette& palette) {
  CRect area(rect);
  int wide = vertical ? area.Width() : area.Height();
  int inset =
      ScaleUnits(state.hovered || state.pressed ? kScrollThumbInset - 1 : kScrollThumbInset);
  int thickness = std::max(wide - 2 * inset, LineWidth());
  CRect thumb = Band(area, vertical, thickness);
  painter.FillRoundRect(thumb, thickness / 2, ThumbColor(state, palette));
}

void DrawScrollArrow(Painter& painter, const RECT& rect, ArrowDirection direction,
                     const ControlState& state, const ControlPalette& palette) {
  COLORREF color = state.enabled && (state.hovered || state.pressed) ? ThumbColor(state, palette)
                                                                     : InkColor(state, palette);
  painter.Arrow(rect, direction, color);
}

void DrawSplitHandle(Painter& painter, const RECT& rect, bool vertical, const ControlState& state,
                     const ControlPalette& palette) {
  CRect area(rect);
  painter.FillRect(area, palette.background);
  bool strong = state.hovered || state.pressed || (state.focused && state.focusCue);
  COLORREF color = state.pressed || state.focusCue ? palette.accent
                   : strong                        ? palette.hoverBorder
                                                   : palette.border;
  int grip = std::min(ScaleUnits(kSplitGrip), Length(area, vertical));
  int start = (Length(area, vertical) - grip) / 2;
  int thickness = strong ? ScaleUnits(2) : LineWidth();
  CRect band = Band(area, vertical, thickness);
  painter.FillRect(strong ? band : Along(band, vertical, start, start + grip), color);
  if (state.focused && state.focusCue) painter.FocusRect(area, palette.text);
}

}  // namespace Theme
