#pragma once

#include <cstdint>
#include <string>

#include "display/offscreen/OffscreenDisplay.h"
#include "platform/Geometry.h"
#include "platform/Window.h"

// Uses windows on the offscreen display as a person would: puts input where a real display does and
// lets all of it be handled before the next step.
class Robot {
 public:
  static display::OffscreenDisplay& Screen();
  // Handles everything that waits; time stands still.
  static void PumpAll();
  // Lets time go by, timers and hovering in their order.
  void AdvanceTime(std::uint64_t milliseconds);

  void MoveTo(POINT screen);
  void MoveTo(HWND window) { MoveTo(CentreOf(window)); }
  void Press(POINT screen, display::MouseButton button = display::MouseButton::Left);
  void Press(HWND window) { Press(CentreOf(window)); }
  void Release(display::MouseButton button = display::MouseButton::Left);
  void Click(POINT screen);
  void ClickCentreOf(HWND window) { Click(CentreOf(window)); }
  void DoubleClick(POINT screen);
  void RightClick(POINT screen);
  // Presses, moves on the way and at the end, releases there.
  void Drag(POINT from, POINT to);
  void Wheel(int notches, bool horizontal = false);  // positive away from the user

  void KeyDown(int virtualKey);
  void KeyUp(int virtualKey);
  void Key(int virtualKey);
  // Down with Control or Alt held.
  void ControlKey(int virtualKey);
  void AltKey(wchar_t letter);
  void Tab();
  void ShiftTab();
  void Type(const std::wstring& text);

  static POINT CentreOf(HWND window);  // on the screen
  // What the window shows at a place of its client area, 0x00RRGGBB.
  static std::uint32_t PixelAt(HWND window, int x, int y);
  // How many pixels of the client area's rectangle differ from a colour (0x00RRGGBB).
  static int InkIn(HWND window, const RECT& rect, std::uint32_t background);
  // The smallest rectangle of the client area around all pixels of that colour; empty without any.
  static CRect BoundsOf(HWND window, std::uint32_t color);
  // Whether the rectangle shows more than one colour.
  static bool HasInk(HWND window, const RECT& rect);

 private:
  void TypeCharacter(wchar_t c);
};
