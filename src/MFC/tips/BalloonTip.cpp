#include "MFC/tips/BalloonTip.h"

#include <algorithm>

#include "BaseGUIObject.h"
#include "MFC/BaseImplMFC.h"
#include "platform/Painter.h"

namespace Wexa {

namespace {

constexpr UINT kCloseTimer = 1;
constexpr int kArrowHeight = 8;
constexpr int kArrowInset = 24;  // from the balloon's edge to the arrow's tip

BalloonTip* g_shown = nullptr;

}  // namespace

// -- Arrow

void BalloonArrow::Point(HWND owner, POINT tip, bool upwards, const ControlPalette& palette,
                         COLORREF background) {
  if (!Prepare(owner)) return;
  upwards_ = upwards;
  background_ = background;
  SetContent({}, palette, nullptr);
  const int height = Scale(kArrowHeight) + 1;  // over the balloon's border
  const int top = upwards ? tip.y : tip.y - height;
  ShowAt({tip.x - height + 1, top, tip.x + height, top + height});
}

void BalloonArrow::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  painter.FillRect(client, background_);
  const int centre = client.Width() / 2;
  for (int row = 0; row < client.Height(); ++row) {
    const int y = upwards_ ? client.top + row : client.bottom - 1 - row;
    const CRect line(centre - row, y, centre + row + 1, y + 1);
    painter.FillRect(line, palette.border);
    painter.FillRect(line.Shrunk(1, 0), palette.face);
  }
}

// -- Balloon

BalloonTip::~BalloonTip() {
  if (g_shown == this) g_shown = nullptr;
}

bool BalloonTip::Show(BaseGUIObject& widget, const TipContent& content, Manner manner) {
  HWND window = widget.GetPlatformHandle();
  if (content.title.empty() && content.text.empty()) return false;
  if (g_shown) g_shown->Close();
  if (!window || !::IsWindowVisible(window) || !Prepare(window)) return false;
  widgetGone_ = ScopedConnection(widget.Destroyed,
                                 widget.Destroyed.Connect([this](BaseGUIObject*) { Close(); }));
  manner_ = manner;
  SetContent(content, TipPalette(widget.GetSkinManager()), ImplOf(&widget)->Font());
  Place(widget);
  g_shown = this;
  if (manner.milliseconds > 0) SetTimer(kCloseTimer, manner.milliseconds);
  return true;
}

// Below the widget, or above it where there is no room.
void BalloonTip::Place(BaseGUIObject& widget) {
  const CRect target = widget.GetWindowRect().PlatformRect();
  const CRect area = ScreenArea();
  const SIZE size = ContentSize();
  const int arrow = Scale(kArrowHeight);
  const bool below = target.bottom + arrow + size.cy <= area.bottom;
  const POINT tip{(target.left + target.right) / 2, below ? target.bottom : target.top};
  const int top = below ? tip.y + arrow : tip.y - arrow - size.cy;
  const int rightmost = std::max<int>(area.right - size.cx, area.left);
  const int left = std::clamp<int>(tip.x - Scale(kArrowInset), area.left, rightmost);
  ShowAt({left, top, left + size.cx, top + size.cy});
  arrow_.Point(widget.GetPlatformHandle(), tip, below, Colors(),
               ImplOf(&widget)->BackgroundColor());
}

void BalloonTip::Close() {
  if (g_shown == this) g_shown = nullptr;
  if (GetSafeHwnd()) KillTimer(kCloseTimer);
  arrow_.Hide();
  Hide();
}

void BalloonTip::OnInput() {
  if (g_shown && g_shown->manner_.closesOnInput) g_shown->Close();
}

LRESULT BalloonTip::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_TIMER || message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN) {
    Close();
    return 0;
  }
  return TipWindow::Handle(message, wParam, lParam);
}

}  // namespace Wexa
