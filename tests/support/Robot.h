#pragma once

#include <cstdint>

#include "display/offscreen/OffscreenDisplay.h"
#include "platform/Geometry.h"
#include "platform/Window.h"
#include "testing/Robot.h"

// The robot of hosts, for tests that also see the screen itself.
class Robot : public Wexa::Testing::Robot {
 public:
  static display::OffscreenDisplay& Screen();

  void ClickCentreOf(HWND window) { Click(window); }

  // What the window shows at a place of its client area, 0x00RRGGBB.
  static std::uint32_t PixelAt(HWND window, int x, int y);
  // How many pixels of the client area's rectangle differ from a colour (0x00RRGGBB).
  static int InkIn(HWND window, const RECT& rect, std::uint32_t background);
  // The smallest rectangle of the client area around all pixels of that colour; empty without any.
  static CRect BoundsOf(HWND window, std::uint32_t color);
  // Whether the rectangle shows more than one colour.
  static bool HasInk(HWND window, const RECT& rect);
};
