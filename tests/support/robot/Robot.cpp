#include "support/Robot.h"

#include <algorithm>
#include <optional>

#include "platform/Classes.h"
#include "platform/VirtualKeys.h"
#include "window/WindowObject.h"

namespace {

using display::MouseButton;

struct KeyStroke {
  int virtualKey;
  bool shift;
};

// Where an American keyboard has a character; others come as text without a key of their own.
std::optional<KeyStroke> StrokeOf(wchar_t c) {
  struct Pair {
    int virtualKey;
    const wchar_t* characters;  // plain and with Shift
  };
  constexpr Pair kPairs[] = {
      {'1', L"1!"},           {'2', L"2@"},      {'3', L"3#"},          {'4', L"4$"},
      {'5', L"5%"},           {'6', L"6^"},      {'7', L"7&"},          {'8', L"8*"},
      {'9', L"9("},           {'0', L"0)"},      {VK_OEM_MINUS, L"-_"}, {VK_OEM_PLUS, L"=+"},
      {VK_OEM_1, L";:"},      {VK_OEM_2, L"/?"}, {VK_OEM_3, L"`~"},     {VK_OEM_4, L"[{"},
      {VK_OEM_5, L"\\|"},     {VK_OEM_6, L"]}"}, {VK_OEM_7, L"'\""},    {VK_OEM_COMMA, L",<"},
      {VK_OEM_PERIOD, L".>"}, {VK_SPACE, L"  "}, {VK_RETURN, L"\r\n"},  {VK_TAB, L"\t\t"}};
  if (c >= L'a' && c <= L'z') return KeyStroke{static_cast<int>(c - L'a') + 'A', false};
  if (c >= L'A' && c <= L'Z') return KeyStroke{static_cast<int>(c), true};
  for (const Pair& pair : kPairs) {
    if (pair.characters[0] == c) return KeyStroke{pair.virtualKey, false};
    if (pair.characters[1] == c) return KeyStroke{pair.virtualKey, c != L'\n'};
  }
  return std::nullopt;
}

std::u32string LetterText(int key) {
  const bool control = Robot::Screen().IsKeyDown(VK_CONTROL);
  const bool upper = Robot::Screen().IsKeyDown(VK_SHIFT);
  const int letter = control ? key - 'A' + 1 : upper ? key : key - 'A' + 'a';
  return {static_cast<char32_t>(letter)};
}

// What a keyboard gives with the keys that are down.
std::u32string TextOf(int key) {
  if (key >= 'A' && key <= 'Z') return LetterText(key);
  switch (key) {
    case VK_RETURN: return U"\r";
    case VK_TAB: return U"\t";
    case VK_BACK: return Robot::Screen().IsKeyDown(VK_CONTROL) ? U"\x7f" : U"\b";
    case VK_ESCAPE: return U"\x1b";
    case VK_SPACE: return U" ";
    default: break;
  }
  if (key >= '0' && key <= '9') return {static_cast<char32_t>(key)};
  return {};
}

}  // namespace

display::OffscreenDisplay& Robot::Screen() {
  return dynamic_cast<display::OffscreenDisplay&>(display::Current());
}

void Robot::PumpAll() {
  AfxPumpPending();
}

void Robot::AdvanceTime(std::uint64_t milliseconds) {
  for (std::uint64_t i = 0; i < milliseconds; ++i) {
    Screen().AdvanceTime(1);
    PumpAll();
  }
}

void Robot::MoveTo(POINT screen) {
  Screen().MovePointer(screen);
  PumpAll();
}

void Robot::Press(POINT screen, MouseButton button) {
  MoveTo(screen);
  Screen().PressButton(button);
  PumpAll();
}

void Robot::Release(MouseButton button) {
  Screen().ReleaseButton(button);
  PumpAll();
}

void Robot::Click(POINT screen) {
  Screen().AdvanceTime(display::Current().DoubleClickTime() + 1);
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
  Screen().TurnWheel(notches * kNotch, horizontal);
  PumpAll();
}

void Robot::KeyDown(int virtualKey) {
  Screen().PressKey(virtualKey, TextOf(virtualKey));
  PumpAll();
}

void Robot::KeyUp(int virtualKey) {
  Screen().ReleaseKey(virtualKey);
  PumpAll();
}

void Robot::Key(int virtualKey) {
  KeyDown(virtualKey);
  KeyUp(virtualKey);
}

void Robot::ControlKey(int virtualKey) {
  KeyDown(VK_CONTROL);
  Key(virtualKey);
  KeyUp(VK_CONTROL);
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
  KeyDown(VK_SHIFT);
  Key(VK_TAB);
  KeyUp(VK_SHIFT);
}

void Robot::Type(const std::wstring& text) {
  for (const wchar_t c : text) TypeCharacter(c);
}

void Robot::TypeCharacter(wchar_t c) {
  constexpr int kPacket = 0xE7;
  const KeyStroke stroke = StrokeOf(c).value_or(KeyStroke{kPacket, false});
  if (stroke.shift) KeyDown(VK_SHIFT);
  Screen().PressKey(stroke.virtualKey, {static_cast<char32_t>(c)});
  PumpAll();
  KeyUp(stroke.virtualKey);
  if (stroke.shift) KeyUp(VK_SHIFT);
}

POINT Robot::CentreOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
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
