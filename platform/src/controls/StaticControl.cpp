#include "controls/StaticControl.h"

#include <algorithm>

#include "platform/ControlConstants.h"
#include "platform/Painter.h"

namespace {

constexpr int kUnlimited = 1 << 20;
constexpr int kLineThickness = 2;

bool IsLine(DWORD style) {
  const DWORD type = style & SS_TYPEMASK;
  return type == SS_ETCHEDHORZ || type == SS_ETCHEDVERT;
}

// How the text is laid out, by style.
UINT TextFormat(DWORD style) {
  UINT format = DT_WORDBREAK;
  switch (style & SS_TYPEMASK) {
    case SS_CENTER: format |= DT_CENTER; break;
    case SS_RIGHT: format |= DT_RIGHT; break;
    case SS_LEFTNOWORDWRAP: format = DT_LEFT; break;
    default: break;
  }
  if (style & SS_ENDELLIPSIS) format = (format & ~DT_WORDBREAK) | DT_END_ELLIPSIS;
  if (style & SS_CENTERIMAGE) format |= DT_VCENTER;
  if (style & SS_NOPREFIX) format |= DT_NOPREFIX;
  return format;
}

}  // namespace

LRESULT StaticControl::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto notifies = [this] { return (Style() & SS_NOTIFY) != 0; };
  switch (message) {
    case WM_GETDLGCODE: return DLGC_STATIC;
    case WM_NCHITTEST: return notifies() ? Default(message, wParam, lParam) : HTTRANSPARENT;
    case WM_LBUTTONDOWN:
      if (notifies()) Notify(STN_CLICKED);
      return 0;
    case WM_LBUTTONDBLCLK:
      if (notifies()) Notify(STN_DBLCLK);
      return 0;
    default: return Control::Handle(message, wParam, lParam);
  }
}

void StaticControl::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  const DWORD style = Style();
  painter.FillRect(client, palette.background);
  if (IsLine(style)) {
    Theme::DrawLine(painter, client, (style & SS_TYPEMASK) == SS_ETCHEDVERT, palette);
    return;
  }
  const ControlState state = State();
  const COLORREF color = state.enabled ? palette.text : palette.disabledText;
  painter.Text(Text(), client, TextFormat(style) | Theme::PrefixFormat(state), Font(), color);
}

SIZE StaticControl::IdealSize(HWND window, int width) {
  const auto style = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
  if (IsLine(style)) return {ScaleUnits(kLineThickness), ScaleUnits(kLineThickness)};
  const auto font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
  const SIZE extent = GetTextExtent(font, GetWindowTextString(window),
                                    width < 0 ? kUnlimited : width, TextFormat(style));
  return {extent.cx, std::max<LONG>(extent.cy, GetFontMetrics(font).height)};
}
