#include <algorithm>

#include "graphics/ThemeParts.h"

namespace Theme {

namespace {

constexpr int kTitleIndent = 8;
constexpr int kTitleGap = 3;
constexpr SIZE kTabPadding{12, 5};
constexpr int kTabMark = 2;
constexpr int kTabFocusInset = 3;

// The frame without the part of its upper edge that [from, to) covers.
void DrawOpenFrame(Painter& painter, const CRect& frame, int from, int to, COLORREF color) {
  int line = LineWidth();
  painter.FillRect(RECT{frame.left, frame.top, from, frame.top + line}, color);
  painter.FillRect(RECT{to, frame.top, frame.right, frame.top + line}, color);
  painter.FillRect(RECT{frame.left, frame.top + line, frame.left + line, frame.bottom}, color);
  painter.FillRect(RECT{frame.right - line, frame.top + line, frame.right, frame.bottom}, color);
  painter.FillRect(RECT{frame.left + line, frame.bottom - line, frame.right - line, frame.bottom},
                   color);
}

bool IsUpright(TabEdge outer) {
  return outer == TabEdge::Left || outer == TabEdge::Right;
}

CRect AtEdge(CRect rect, TabEdge edge, int thickness) {
  switch (edge) {
    case TabEdge::Top: rect.bottom = rect.top + thickness; break;
    case TabEdge::Bottom: rect.top = rect.bottom - thickness; break;
    case TabEdge::Left: rect.right = rect.left + thickness; break;
    case TabEdge::Right: rect.left = rect.right - thickness; break;
  }
  return rect;
}

// The lines between the selected tab and its neighbours.
void DrawTabSides(Painter& painter, const CRect& rect, TabEdge outer, COLORREF color) {
  const bool upright = IsUpright(outer);
  for (TabEdge side :
       {upright ? TabEdge::Top : TabEdge::Left, upright ? TabEdge::Bottom : TabEdge::Right})
    painter.FillRect(AtEdge(rect, side, LineWidth()), color);
}

}  // namespace

void DrawGroupBox(Painter& painter, const RECT& rect, std::wstring_view title, HFONT font,
                  const ControlState& state, const ControlPalette& palette, int across) {
  COLORREF border = state.enabled ? palette.border : palette.disabledBorder;
  if (title.empty()) return painter.FrameRect(rect, border, LineWidth());
  CRect frame(rect);
  UINT format = DT_SINGLELINE | DT_END_ELLIPSIS | PrefixFormat(state);
  int indent = ScaleUnits(kTitleIndent) + ScaleUnits(kTitleGap);
  int room = std::max(frame.Width() - 2 * indent, 0);
  SIZE text = GetTextExtent(font, title, room, format);
  int left = frame.left + indent + std::max<int>(room - text.cx, 0) * across / 2;
  CRect place(left, frame.top, left + text.cx, frame.top + text.cy);
  frame.top += text.cy / 2;
  int gap = ScaleUnits(kTitleGap);
  DrawOpenFrame(painter, frame, place.left - gap, place.right + gap, border);
  painter.Text(title, place, format, font, InkColor(state, palette));
}

RECT GroupBoxMargins(HFONT font, bool hasTitle) {
  int line = LineWidth();
  return {line, hasTitle ? GetFontMetrics(font).height : line, line, line};
}

SIZE TabPadding() {
  return {ScaleUnits(kTabPadding.cx), ScaleUnits(kTabPadding.cy)};
}

// Captions of tabs below each other begin at the same place.
void DrawTab(Painter& painter, const RECT& rect, std::wstring_view text, HFONT font, bool selected,
             TabEdge outer, const ControlState& state, const ControlPalette& palette) {
  const bool hovered = state.hovered && state.enabled && !selected;
  const CRect mark = AtEdge(rect, outer, ScaleUnits(kTabMark));
  painter.FillRect(rect, selected ? palette.face : palette.background);
  if (hovered) painter.FillRect(mark, palette.hoverBorder);
  if (selected) {
    DrawTabSides(painter, rect, outer, palette.border);
    painter.FillRect(mark, state.enabled ? palette.accent : palette.disabledBorder);
  }
  const UINT place = IsUpright(outer) ? DT_LEFT : DT_CENTER;
  const UINT format = place | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | PrefixFormat(state);
  const int padding = IsUpright(outer) ? TabPadding().cx : 0;
  painter.Text(text, CRect(rect).Shrunk(padding, 0), format, font, InkColor(state, palette));
  if (!selected || !state.focused || !state.focusCue) return;
  int inset = ScaleUnits(kTabFocusInset);
  painter.FocusRect(CRect(rect).Shrunk(inset, inset), palette.text);
}

void DrawLine(Painter& painter, const RECT& rect, bool vertical, const ControlPalette& palette) {
  CRect area(rect);
  int line = LineWidth();
  int x = area.left + (area.Width() - line) / 2;
  int y = area.top + (area.Height() - line) / 2;
  painter.FillRect(vertical ? RECT{x, area.top, x + line, area.bottom}
                            : RECT{area.left, y, area.right, y + line},
                   palette.border);
}

}  // namespace Theme
