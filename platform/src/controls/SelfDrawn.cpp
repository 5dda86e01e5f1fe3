#include "platform/SelfDrawn.h"

#include "platform/Painter.h"

namespace {

// BeginPaint and EndPaint, also when painting throws.
class PaintScope {
 public:
  explicit PaintScope(HWND window) : window_(window) { BeginPaint(window_, &paint_); }
  ~PaintScope() { EndPaint(window_, &paint_); }
  PaintScope(const PaintScope&) = delete;
  PaintScope& operator=(const PaintScope&) = delete;
  HDC Context() const { return paint_.hdc; }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
};

}  // namespace

ControlPalette GetControlPalette(HWND window) {
  ControlPalette palette = SystemPalette();
  SendMessageW(window, WM_GETCONTROLPALETTE, 0, reinterpret_cast<LPARAM>(&palette));
  return palette;
}

ControlState GetControlState(HWND window) {
  ControlState state;
  SendMessageW(window, WM_GETCONTROLSTATE, 0, reinterpret_cast<LPARAM>(&state));
  return state;
}

LRESULT SelfDrawn::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT: OnPaint(); return 0;
    case WM_ERASEBKGND: return TRUE;
    case WM_GETCONTROLSTATE:
      return lParam ? OnGetState(*reinterpret_cast<ControlState*>(lParam)) : 0;
    case WM_SETFONT: OnSetFont(reinterpret_cast<HFONT>(wParam), LOWORD(lParam) != 0); return 0;
    case WM_GETFONT: return reinterpret_cast<LRESULT>(font_);
    case WM_MOUSEMOVE: SetHovered(true); return 0;
    case WM_MOUSELEAVE: SetHovered(false); return 0;
    case WM_SETTEXT:
    case WM_ENABLE:
    case WM_STYLECHANGED:
    case WM_SYSCOLORCHANGE:
    case WM_UPDATEUISTATE: return HandleThenRepaint(message, wParam, lParam);
    default: return Unhandled(message, wParam, lParam);
  }
}

void SelfDrawn::OnPaint() {
  const PaintScope scope(Window());
  if (!scope.Context()) return;
  Painter painter(scope.Context());
  CRect client;
  GetClientRect(Window(), &client);
  Paint(painter, client, GetControlPalette(Window()));
}

void SelfDrawn::OnSetFont(HFONT font, bool redraw) {
  font_ = font;
  OnFontChanged();
  if (redraw) Repaint();
}

LRESULT SelfDrawn::OnGetState(ControlState& state) const {
  const LRESULT hidden = SendMessageW(Window(), WM_QUERYUISTATE, 0, 0);
  state.enabled = IsWindowEnabled(Window());
  state.focused = GetFocus() == Window();
  state.focusCue = state.focused && (hidden & UISF_HIDEFOCUS) == 0;
  state.mnemonicCue = (hidden & UISF_HIDEACCEL) == 0;
  state.hovered = hovered_ && state.enabled;
  AddState(state);
  return TRUE;
}

void SelfDrawn::SetHovered(bool hovered) {
  if (hovered_ == hovered || !ShowsHover()) return;
  hovered_ = hovered;
  if (hovered) {
    TRACKMOUSEEVENT request{sizeof(TRACKMOUSEEVENT), TME_LEAVE, Window(), 0};
    TrackMouseEvent(&request);
  }
  Repaint();
}

LRESULT SelfDrawn::HandleThenRepaint(UINT message, WPARAM wParam, LPARAM lParam) {
  const LRESULT result = Unhandled(message, wParam, lParam);
  if (Window()) Repaint();
  return result;
}
