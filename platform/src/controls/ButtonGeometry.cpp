#include "controls/ButtonGeometry.h"

#include <algorithm>

#include "platform/ControlConstants.h"
#include "platform/Painter.h"
#include "platform/Theme.h"
#include "platform/Window.h"

namespace {

constexpr int kMinimumPushHeight = 23;
constexpr int kUnlimited = 1 << 20;

}  // namespace

namespace ButtonGeometry {

Look LookOf(DWORD style) {
  if (style & BS_PUSHLIKE) return Look::Push;
  switch (style & BS_TYPEMASK) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE: return Look::Check;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON: return Look::Radio;
    case BS_GROUPBOX: return Look::Group;
    default: return Look::Push;
  }
}

CRect MarkRect(const CRect& client) {
  const int side = Theme::CheckSize();
  const int top = client.top + (client.Height() - side) / 2;
  return {client.left, top, client.left + side, top + side};
}

CRect MarkTextRect(const CRect& client) {
  const int left = MarkRect(client).right + Theme::CheckGap();
  return {std::min<int>(left, client.right), client.top, client.right, client.bottom};
}

CRect PushTextRect(const CRect& client) {
  const SIZE padding = Theme::PushButtonPadding();
  return client.Shrunk(std::min<int>(padding.cx, client.Width() / 2),
                       std::min<int>(padding.cy, client.Height() / 2));
}

SIZE IdealSize(HWND button) {
  const auto font = reinterpret_cast<HFONT>(SendMessageW(button, WM_GETFONT, 0, 0));
  const auto style = static_cast<DWORD>(GetWindowLongPtrW(button, GWL_STYLE));
  const std::wstring text = GetWindowTextString(button);
  const CSize extent = GetTextExtent(font, text, kUnlimited, DT_SINGLELINE);
  const int lineHeight = std::max<int>(extent.cy, GetFontMetrics(font).height);
  switch (LookOf(style)) {
    case Look::Push: {
      const SIZE padding = Theme::PushButtonPadding();
      return {extent.cx + 2 * padding.cx,
              std::max<LONG>(lineHeight + 2 * padding.cy, ScaleUnits(kMinimumPushHeight))};
    }
    case Look::Group: {
      const RECT margins = Theme::GroupBoxMargins(font, !text.empty());
      return {extent.cx + margins.left + margins.right, margins.top + margins.bottom};
    }
    default: {
      const int textWidth = text.empty() ? 0 : Theme::CheckGap() + extent.cx;
      return {Theme::CheckSize() + textWidth, std::max(lineHeight, Theme::CheckSize())};
    }
  }
}

}  // namespace ButtonGeometry
