#include "controls/Control.h"

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

LRESULT Control::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT: OnPaint(); return 0;
    case WM_ERASEBKGND: return TRUE;
    case WM_SETFONT: OnSetFont(reinterpret_cast<HFONT>(wParam), LOWORD(lParam) != 0); return 0;
    case WM_GETFONT: return reinterpret_cast<LRESULT>(font_);
    case WM_MOUSEMOVE: SetHovered(true); return 0;
    case WM_MOUSELEAVE: SetHovered(false); return 0;
    case WM_SETTEXT:
    case WM_ENABLE:
    case WM_STYLECHANGED:
    case WM_SYSCOLORCHANGE:
    case WM_UPDATEUISTATE: return DefaultThenRepaint(message, wParam, lParam);
    default: return Default(message, wParam, lParam);
  }
}

void Control::OnPaint() const {
  const PaintScope scope(window_);
  if (!scope.Context()) return;
  Painter painter(scope.Context());
  Paint(painter, Client());
}

void Control::OnSetFont(HFONT font, bool redraw) {
  font_ = font;
  OnFontChanged();
  if (redraw) Repaint();
}

void Control::SetHovered(bool hovered) {
  if (hovered_ == hovered) return;
  hovered_ = hovered;
  if (hovered) {
    TRACKMOUSEEVENT request{sizeof(TRACKMOUSEEVENT), TME_LEAVE, window_, 0};
    TrackMouseEvent(&request);
  }
  Repaint();
}

DWORD Control::Style() const {
  return static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_STYLE));
}

CRect Control::Client() const {
  CRect client;
  GetClientRect(window_, &client);
  return client;
}

ControlPalette Control::Palette() const {
  ControlPalette palette = SystemPalette();
  SendMessageW(window_, WM_GETCONTROLPALETTE, 0, reinterpret_cast<LPARAM>(&palette));
  return palette;
}

ControlState Control::State() const {
  ControlState state;
  state.enabled = IsWindowEnabled(window_);
  state.hovered = hovered_ && state.enabled;
  state.focused = HasFocus();
  state.focusCue = state.focused && ShowsCue(UISF_HIDEFOCUS);
  return state;
}

UINT Control::PrefixFormat() const {
  return ShowsCue(UISF_HIDEACCEL) ? 0 : DT_HIDEPREFIX;
}

bool Control::ShowsCue(int flag) const {
  return (SendMessageW(window_, WM_QUERYUISTATE, 0, 0) & flag) == 0;
}

LRESULT Control::Default(UINT message, WPARAM wParam, LPARAM lParam) const {
  return DefWindowProcW(window_, message, wParam, lParam);
}

LRESULT Control::DefaultThenRepaint(UINT message, WPARAM wParam, LPARAM lParam) const {
  const LRESULT result = Default(message, wParam, lParam);
  Repaint();
  return result;
}

bool Control::Notify(int code) const {
  SendMessageW(GetParent(window_), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window_), code),
               reinterpret_cast<LPARAM>(window_));
  return IsWindow(window_);
}
