#include "testing/Robot.h"

#include "platform/Classes.h"
#include "platform/OffscreenScreen.h"
#include "platform/VirtualKeys.h"
#include "testing/Keyboard.h"

namespace Wexa::Testing {

void Robot::PumpAll() {
  AfxPumpPending();
}

void Robot::AdvanceTime(std::uint64_t milliseconds) {
  for (std::uint64_t i = 0; i < milliseconds; ++i) {
    offscreen::AdvanceTime(1);
    PumpAll();
  }
}

POINT Robot::CentreOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

void Robot::MoveTo(POINT screen) {
  offscreen::MovePointer(screen);
  PumpAll();
}

void Robot::Press(POINT screen, MouseButton button) {
  MoveTo(screen);
  offscreen::PressButton(button);
  PumpAll();
}

void Robot::Release(MouseButton button) {
  offscreen::ReleaseButton(button);
  PumpAll();
}

void Robot::Click(POINT screen) {
  offscreen::AdvanceTime(offscreen::DoubleClickTime() + 1);
  Press(screen);
  Release();
}

void Robot::DoubleClick(POINT screen) {
  Click(screen);
  Press(screen);
  Release();
}

void Robot::RightClick(POINT screen) {
  Press(screen, MouseButton::Right);
  Release(MouseButton::Right);
}

void Robot::Drag(POINT from, POINT to) {
  Press(from);
  MoveTo({(from.x + to.x) / 2, (from.y + to.y) / 2});
  MoveTo(to);
  Release();
}

void Robot::Wheel(int notches, bool horizontal) {
  constexpr int kNotch = 120;
  offscreen::TurnWheel(notches * kNotch, horizontal);
  PumpAll();
}

void Robot::KeyDown(int virtualKey) {
  offscreen::PressKey(virtualKey, TextOf(virtualKey));
  PumpAll();
}

void Robot::KeyUp(int virtualKey) {
  offscreen::ReleaseKey(virtualKey);
  PumpAll();
}

void Robot::Key(int virtualKey, const std::vector<int>& held) {
  for (const int key : held) KeyDown(key);
  KeyDown(virtualKey);
  KeyUp(virtualKey);
  for (auto key = held.rbegin(); key != held.rend(); ++key) KeyUp(*key);
}

void Robot::ControlKey(int virtualKey) {
  Key(virtualKey, {VK_CONTROL});
}

void Robot::AltKey(wchar_t letter) {
  KeyDown(VK_MENU);
  TypeCharacter(letter);
  KeyUp(VK_MENU);
}

void Robot::Tab() {
  Key(VK_TAB);
}

void Robot::ShiftTab() {
  Key(VK_TAB, {VK_SHIFT});
}

void Robot::Type(const std::wstring& text) {
  for (const wchar_t c : text) TypeCharacter(c);
}

void Robot::TypeCharacter(wchar_t c) {
  const KeyStroke stroke = StrokeOf(c);
  if (stroke.shift) KeyDown(VK_SHIFT);
  offscreen::PressKey(stroke.virtualKey, {static_cast<char32_t>(c)});
  PumpAll();
  KeyUp(stroke.virtualKey);
  if (stroke.shift) KeyUp(VK_SHIFT);
}

void Robot::SetResolution(int dpi) {
  offscreen::ChangeResolution(dpi);
  PumpAll();
}

void Robot::SetDesktopColors(SystemScheme scheme) {
  offscreen::ChangeScheme(scheme);
  PumpAll();
}

}  // namespace Wexa::Testing
