#include <algorithm>

#include "graphics/ThemeParts.h"

namespace Theme {

namespace {

constexpr int kScrollBarWidth = 14;
constexpr int kScrollThumbInset = 4;
constexpr int kShortestThumb = 16;
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
  return state.hovered ? palette.placeholder : palette.border;
}

}  // namespace

void DrawProgress(Painter& painter, const RECT& rect, double fraction, bool vertical,
                  const ControlPalette& palette) {
  int line = LineWidth();
  DrawBox(painter, rect, 0, palette.face, palette.border, line);
  CRect inner = CRect(rect).Shrunk(line, line);
  if (inner.IsEmpty()) return;
  int length = Length(inner, vertical);
  int done = Part(fraction, length);
  CRect bar = vertical ? Along(inner, true, length - done, length) : Along(inner, false, 0, done);
  painter.FillRect(bar, palette.accent);
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
  COLORREF accent = state.enabled ? palette.accent : palette.disabledText;
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

void DrawScrollBar(Painter& painter, const RECT& rect, double from, double to, bool vertical,
                   const ControlState& state, const ControlPalette& palette) {
  CRect area(rect);
  painter.FillRect(area, palette.background);
  int length = Length(area, vertical);
  int shortest = std::min(ScaleUnits(kShortestThumb), length);
  int size = std::max(Part(Limited(to) - Limited(from), length), shortest);
  int start = std::min(Part(from, length), length - size);
  int wide = vertical ? area.Width() : area.Height();
  int inset =
      ScaleUnits(state.hovered || state.pressed ? kScrollThumbInset - 1 : kScrollThumbInset);
  int thickness = std::max(wide - 2 * inset, LineWidth());
  CRect thumb = Along(Band(area, vertical, thickness), vertical, start, start + size);
  int margin = LineWidth();
  CRect inner = vertical ? thumb.Shrunk(0, margin) : thumb.Shrunk(margin, 0);
  painter.FillRoundRect(inner, thickness / 2, ThumbColor(state, palette));
}

}  // namespace Theme
