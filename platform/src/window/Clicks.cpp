#include "window/Clicks.h"

#include "window/Session.h"

namespace core {
namespace {

Click& LatestClick() {
  return CurrentSession().latestClick;
}

bool IsNear(const POINT& a, const POINT& b) {
  const int reach = GetSystemMetrics(SM_CXDOUBLECLK) / 2;
  return std::abs(a.x - b.x) <= reach && std::abs(a.y - b.y) <= reach;
}

}  // namespace

bool NoteClick(const Window& window, const display::Input& press) {
  const Click before = LatestClick();
  const bool twice = before.window == window.handle && before.button == press.button &&
                     press.time - before.time <= GetDoubleClickTime() &&
                     IsNear(before.place, press.position);
  LatestClick() = twice ? Click{} : Click{window.handle, press.button, press.position, press.time};
  return twice;
}

void ForgetClick(const Window& window) {
  if (LatestClick().window == window.handle) LatestClick() = {};
}

}  // namespace core

UINT GetDoubleClickTime() {
  return display::Current().DoubleClickTime();
}
