#include "MFC/ranges/RangeWnd.h"

#include "platform/VirtualKeys.h"

namespace Wexa {

namespace {

constexpr int kWheelNotch = 120;
constexpr int kLinesPerNotch = 3;

}  // namespace

void RangeWnd::SetRange(int minimum, int maximum) {
  bool changed = range_.SetBounds(minimum, maximum);
  if (!IsGone()) Invalidate();
  const auto notify = onChanged;
  if (changed && notify) notify(range_.Value());
}

void RangeWnd::SetSteps(int single, int page) {
  range_.SetSteps(single, page);
  if (!IsGone()) Invalidate();
}

void RangeWnd::SetValue(std::int64_t value) {
  if (!range_.SetValue(value)) return;
  if (!IsGone()) Invalidate();
  const auto notify = onChanged;
  if (notify) notify(range_.Value());
}

void RangeWnd::TrackValue(std::int64_t value) {
  int before = range_.Value();
  SetValue(value);
  if (IsGone() || range_.Value() == before) return;
  const auto notify = onTracked;
  if (notify) notify(range_.Value());
}

bool RangeWnd::MoveByKey(int virtualKey) {
  switch (Mirrored(virtualKey)) {
    case VK_UP: MoveLines(UpSign()); return true;
    case VK_DOWN: MoveLines(-UpSign()); return true;
    case VK_LEFT: MoveLines(-1); return true;
    case VK_RIGHT: MoveLines(1); return true;
    case VK_PRIOR: MovePages(UpSign()); return true;
    case VK_NEXT: MovePages(-UpSign()); return true;
    case VK_HOME: SetValue(range_.Minimum()); return true;
    case VK_END: SetValue(range_.Maximum()); return true;
    default: return false;
  }
}

// Turns finer than a notch add up.
void RangeWnd::MoveByWheel(int delta) {
  wheelRest_ += delta * kLinesPerNotch;
  int lines = wheelRest_ / kWheelNotch;
  wheelRest_ -= lines * kWheelNotch;
  MoveLines(lines * UpSign());
}

bool RangeWnd::OnWheel(int delta, bool horizontal) {
  MoveByWheel(horizontal ? delta * -UpSign() : delta);
  return true;
}

LRESULT RangeWnd::DialogCode(const MSG*) const {
  return DLGC_WANTARROWS;
}

}  // namespace Wexa
