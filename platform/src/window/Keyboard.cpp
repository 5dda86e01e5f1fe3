#include "window/Keyboard.h"

#include <utility>

#include "platform/VirtualKeys.h"
#include "window/Activation.h"
#include "window/Focus.h"
#include "window/KeyState.h"
#include "window/ScanCodes.h"
#include "window/Session.h"

namespace core {
namespace {

using display::Input;

KeyStroke& LatestKey() {
  return CurrentSession().latestKey;
}

constexpr std::uint32_t kExtended = 1U << 24;
constexpr std::uint32_t kAltHeld = 1U << 29;
constexpr std::uint32_t kWasDown = 1U << 30;
constexpr std::uint32_t kReleased = 1U << 31;

LPARAM KeyData(const Input& input, bool wasDown, bool altHeld) {
  const int scanCode = input.scanCode ? input.scanCode : ScanCodeOf(input.virtualKey);
  std::uint32_t data = 1U | static_cast<std::uint32_t>(scanCode & 0xFF) << 16;
  if (input.extendedKey) data |= kExtended;
  if (altHeld) data |= kAltHeld;
  if (wasDown) data |= kWasDown;
  if (input.kind == Input::Kind::KeyUp) data |= kReleased;
  return static_cast<LPARAM>(data);
}

// Alt without Control, F10, and any key while no window has the focus speak to the system.
bool IsSystemKey(int key, bool altHeld, bool hasFocus) {
  const bool menu = key == VK_MENU || key == VK_F10;
  return !hasFocus || ((altHeld || menu) && !IsKeyDown(VK_CONTROL));
}

UINT MessageOf(bool down, bool system) {
  if (system) return down ? WM_SYSKEYDOWN : WM_SYSKEYUP;
  return down ? WM_KEYDOWN : WM_KEYUP;
}

bool SameMessage(const MSG& a, const MSG& b) {
  return a.hwnd == b.hwnd && a.message == b.message && a.wParam == b.wParam &&
         a.lParam == b.lParam && a.time == b.time;
}

}  // namespace

std::optional<MSG> KeyMessage(const Input& input) {
  const bool down = input.kind == Input::Kind::KeyDown;
  const bool wasDown = IsKeyDown(input.virtualKey);
  const int key = EitherSide(input.virtualKey);
  SetKeyDown(input.virtualKey, down);
  CurrentSession().keyboardUsedLast = true;
  const Window* focused = FocusedWindow();
  const Window* target = focused ? focused : ActiveWindow();
  if (!target) return std::nullopt;
  const bool altHeld = IsKeyDown(VK_MENU);
  const UINT message = MessageOf(down, IsSystemKey(key, altHeld, focused != nullptr));
  MSG made{
      target->handle, message, static_cast<WPARAM>(key), KeyData(input, wasDown || !down, altHeld),
      input.time,     {}};
  GetCursorPos(&made.pt);
  LatestKey() = {made, down ? input.text : std::u32string()};
  return made;
}

bool WasKeyboardUsedLast() {
  return CurrentSession().keyboardUsedLast;
}

void NoteMouseUsed() {
  CurrentSession().keyboardUsedLast = false;
}

}  // namespace core

BOOL TranslateMessage(const MSG* message) {
  if (!message || !core::SameMessage(core::LatestKey().message, *message)) return FALSE;
  const std::u32string text = std::exchange(core::LatestKey().text, {});
  const UINT kind = message->message == WM_SYSKEYDOWN ? WM_SYSCHAR : WM_CHAR;
  for (const char32_t c : text)
    PostMessageW(message->hwnd, kind, static_cast<WPARAM>(c), message->lParam);
  return !text.empty();
}
