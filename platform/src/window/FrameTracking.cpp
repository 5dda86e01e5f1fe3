#include "window/FrameTracking.h"

#include <algorithm>
#include <utility>

#include "window/Dispatch.h"
#include "window/Frame.h"
#include "window/Position.h"
#include "window/Session.h"

namespace core {
namespace {

FrameGrab& Current() {
  return CurrentSession().frameGrab;
}

bool HasSide(int part, std::initializer_list<int> sides) {
  return std::find(sides.begin(), sides.end(), part) != sides.end();
}

// The rectangle with the grabbed edges moved by the pointer's travel, within the limits.
CRect Sized(const FrameGrab& grab, int dx, int dy) {
  const bool left = HasSide(grab.part, {HTLEFT, HTTOPLEFT, HTBOTTOMLEFT});
  const bool right = HasSide(grab.part, {HTRIGHT, HTTOPRIGHT, HTBOTTOMRIGHT});
  const bool top = HasSide(grab.part, {HTTOP, HTTOPLEFT, HTTOPRIGHT});
  const bool bottom = HasSide(grab.part, {HTBOTTOM, HTBOTTOMLEFT, HTBOTTOMRIGHT});
  CRect rect = grab.place;
  const SIZE size = grab.limits.Clamp({rect.Width() + (right  ? dx
                                                       : left ? -dx
                                                              : 0),
                                       rect.Height() + (bottom ? dy
                                                        : top  ? -dy
                                                               : 0)});
  (left ? rect.left : rect.right) = left ? rect.right - size.cx : rect.left + size.cx;
  (top ? rect.top : rect.bottom) = top ? rect.bottom - size.cy : rect.top + size.cy;
  return rect;
}

void Drag(Window& root, const FrameGrab& grab, POINT screen) {
  const int dx = screen.x - grab.start.x;
  const int dy = screen.y - grab.start.y;
  const bool moving = grab.part == HTCAPTION;
  Hold hold(&root);
  CRect rect = moving ? grab.place.Moved(dx, dy) : Sized(grab, dx, dy);
  if (rect == root.rect) return;
  if (moving) Send(root, WM_MOVING, 0, AsParam(static_cast<RECT*>(&rect)));
  if (!hold.Alive()) return;
  Reposition(root, {root.handle, nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                    SWP_NOZORDER | SWP_NOACTIVATE});
}

void HoldClose(Window& root, POINT screen) {
  const bool over = FramePartAt(root, screen) == HTCLOSE;
  SetPressedPart(root, over ? FramePart::Close : FramePart::None);
}

void Release(Window& root, const FrameGrab& grab, POINT screen) {
  Hold hold(&root);
  const bool closes = grab.part == HTCLOSE && FramePartAt(root, screen) == HTCLOSE;
  ReleaseCapture();
  if (closes && hold.Alive()) Send(root, WM_SYSCOMMAND, SC_CLOSE, MAKELPARAM(screen.x, screen.y));
}

}  // namespace

void BeginFrameTracking(Window& root, int part, POINT screen) {
  const bool isClose = part == HTCLOSE;
  if (!isClose && display::Current().BeginMoveSize(root.top->surfaceId, part)) return;
  Hold hold(&root);
  SetCapture(root.handle);
  if (!hold.Alive() || GetCapture() != root.handle) return;
  Current() = {root.handle, part, screen, root.rect, isClose ? SizeLimits{} : LimitsOf(root)};
  if (isClose)
    SetPressedPart(root, FramePart::Close);
  else
    Send(root, WM_ENTERSIZEMOVE);
}

bool IsFrameTracked() {
  return Find(Current().root) != nullptr;
}

void TrackFrame(const display::Input& input) {
  const FrameGrab grab = Current();
  Window* root = Find(grab.root);
  if (!root) return;
  const bool released =
      input.kind == display::Input::Kind::ButtonUp && input.button == display::MouseButton::Left;
  Hold hold(root);
  if (grab.part == HTCLOSE)
    HoldClose(*root, input.position);
  else
    Drag(*root, grab, input.position);
  if (released && hold.Alive()) Release(*root, grab, input.position);
}

void EndFrameTracking() {
  const FrameGrab grab = std::exchange(Current(), {});
  Window* root = Find(grab.root);
  if (!root) return;
  SetPressedPart(*root, FramePart::None);
  if (grab.part != HTCLOSE) Send(*root, WM_EXITSIZEMOVE);
}

}  // namespace core
