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

}  // namespace

void DrawGroupBox(Painter& painter, const RECT& rect, std::wstring_view title, HFONT font,
                  const ControlState& state, const ControlPalette& palette) {
  COLORREF border = state.enabled ? palette.border : palette.disabledBorder;
  if (title.empty()) return painter.FrameRect(rect, border, LineWidth());
  CRect frame(rect);
  UINT format = DT_SINGLELINE | DT_END_ELLIPSIS | PrefixFormat(state);
  int indent = ScaleUnits(kTitleIndent) + ScaleUnits(kTitleGap);
  int room = std::max(frame.Width() - 2 * indent, 0);
  SIZE text = GetTextExtent(font, title, room, format);
  CRect place(frame.left + indent, frame.top, frame.left + indent + text.cx, frame.top + text.cy);
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

void DrawTab(Painter& painter, const RECT& rect, std::wstring_view text, HFONT font, bool selected,
             const ControlState& state, const ControlPalette& palette) {
  bool hovered = state.hovered && state.enabled && !selected;
  CRect mark(rect.left, rect.top, rect.right, rect.top + ScaleUnits(kTabMark));
  painter.FillRect(rect, selected ? palette.face : palette.background);
  if (hovered) painter.FillRect(mark, palette.hoverBorder);
  if (selected) {
    int line = LineWidth();
    painter.FillRect(RECT{rect.left, rect.top, rect.left + line, rect.bottom}, palette.border);
    painter.FillRect(RECT{rect.right - line, rect.top, rect.right, rect.bottom}, palette.border);
    painter.FillRect(mark, state.enabled ? palette.accent : palette.disabledBorder);
  }
  UINT format = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | PrefixFormat(state);
  painter.Text(text, rect, format, font, InkColor(state, palette));
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
