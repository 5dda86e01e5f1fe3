#include "support/Robot.h"

#include <algorithm>

#include "window/WindowObject.h"

display::OffscreenDisplay& Robot::Screen() {
  return dynamic_cast<display::OffscreenDisplay&>(display::Current());
}

std::uint32_t Robot::PixelAt(HWND window, int x, int y) {
  constexpr std::uint32_t kColorBits = 0xFFFFFF;
  PaintNow();
  POINT screen{x, y};
  ClientToScreen(window, &screen);
  core::Window* w = core::Find(GetAncestor(window, GA_ROOT));
  if (!w) return 0;
  const auto& root = w->rect;
  return Screen().PixelAt(w->top->surfaceId, screen.x - root.left, screen.y - root.top) &
         kColorBits;
}

int Robot::InkIn(HWND window, const RECT& rect, std::uint32_t background) {
  int ink = 0;
  for (int y = rect.top; y < rect.bottom; ++y)
    for (int x = rect.left; x < rect.right; ++x)
      if (PixelAt(window, x, y) != background) ++ink;
  return ink;
}

CRect Robot::BoundsOf(HWND window, std::uint32_t color) {
  RECT client{};
  GetClientRect(window, &client);
  CRect bounds(client.right, client.bottom, 0, 0);
  for (int y = 0; y < client.bottom; ++y) {
    for (int x = 0; x < client.right; ++x) {
      if (PixelAt(window, x, y) != color) continue;
      bounds = CRect(std::min<int>(bounds.left, x), std::min<int>(bounds.top, y),
                     std::max<int>(bounds.right, x + 1), std::max<int>(bounds.bottom, y + 1));
    }
  }
  return bounds.IsEmpty() ? CRect() : bounds;
}

bool Robot::HasInk(HWND window, const RECT& rect) {
  return InkIn(window, rect, PixelAt(window, rect.left, rect.top)) > 0;
}
