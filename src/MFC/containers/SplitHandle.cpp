#include "MFC/containers/SplitHandle.h"

#include "MFC/BaseImplMFC.h"
#include "platform/Painter.h"
#include "platform/VirtualKeys.h"

namespace Wexa {

namespace {

constexpr int kKeyStep = 8;
constexpr int kFarthest = 1 << 24;  // as far as the panes allow

}  // namespace

void SplitHandle::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  Theme::DrawSplitHandle(painter, client, sideBySide, State(), palette);
}

// The handle moves under the pointer: places count in its parent.
int SplitHandle::PlaceOf(POINT point) const {
  MapWindowPoints(m_hWnd, GetParent()->GetSafeHwnd(), &point, 1);
  return sideBySide ? point.x : point.y;
}

bool SplitHandle::OnKey(int virtualKey) {
  const auto move = onKeyMoved;
  switch (Mirrored(virtualKey)) {
    case VK_LEFT:
    case VK_UP: move(-Scale(kKeyStep)); return true;
    case VK_RIGHT:
    case VK_DOWN: move(Scale(kKeyStep)); return true;
    case VK_HOME: move(-kFarthest); return true;
    case VK_END: move(kFarthest); return true;
    default: return false;
  }
}

}  // namespace Wexa
