#include "platform/OffscreenScreen.h"

#include <stdexcept>

#include "display/offscreen/OffscreenDisplay.h"
#include "graphics/Environment.h"

namespace offscreen {

namespace {

display::OffscreenDisplay& Screen() {
  auto* screen = dynamic_cast<display::OffscreenDisplay*>(&display::Current());
  if (!screen) throw std::logic_error("This is a real screen: set WEXA_DISPLAY=offscreen.");
  return *screen;
}

}  // namespace

void MovePointer(POINT screen) {
  Screen().MovePointer(screen);
}

void PressButton(MouseButton button) {
  Screen().PressButton(button);
}

void ReleaseButton(MouseButton button) {
  Screen().ReleaseButton(button);
}

void TurnWheel(int delta, bool horizontal) {
  Screen().TurnWheel(delta, horizontal);
}

void PressKey(int virtualKey, const std::u32string& text) {
  Screen().PressKey(virtualKey, text);
}

void ReleaseKey(int virtualKey) {
  Screen().ReleaseKey(virtualKey);
}

bool IsKeyDown(int virtualKey) {
  return Screen().IsKeyDown(virtualKey);
}

void AdvanceTime(std::uint64_t milliseconds) {
  Screen().AdvanceTime(milliseconds);
}

std::uint32_t DoubleClickTime() {
  return Screen().DoubleClickTime();
}

void ChangeResolution(int dpi) {
  if (!IsServedDpi(dpi)) throw std::invalid_argument("A screen has 48 to 960 dots an inch.");
  Screen().ChangeResolution(dpi);
}

void ChangeScheme(SystemScheme scheme) {
  Screen().ChangeScheme(scheme);
}

}  // namespace offscreen
