#include "window/Clicks.h"

namespace core {
namespace {

struct Click {
  HWND window = nullptr;
  display::MouseButton button{};
  CPoint place;
  std::uint32_t time = 0;
};

Click& LatestClick() {
  static Click click;
  return click;
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
