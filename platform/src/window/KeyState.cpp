#include "window/KeyState.h"

#include "display/Display.h"
#include "platform/VirtualKeys.h"
#include "platform/Window.h"
#include "window/ScanCodes.h"
#include "window/Session.h"

namespace core {
namespace {

constexpr int kKeyCount = Session::kKeyCount;

bool IsKey(int virtualKey) {
  return virtualKey > 0 && virtualKey < kKeyCount;
}

Key& KeyAt(int virtualKey) {
  return CurrentSession().keys[static_cast<std::size_t>(virtualKey)];
}

void Press(int virtualKey, bool down) {
  Key& key = KeyAt(virtualKey);
  if (down && !key.down) key.toggled = !key.toggled;
  key.down = down;
}

// Shift, Control and Alt are down as long as one of their sides is.
void FollowSides(int either) {
  struct Sides {
    int either, left, right;
  };
  constexpr Sides kSides[] = {{VK_SHIFT, VK_LSHIFT, VK_RSHIFT},
                              {VK_CONTROL, VK_LCONTROL, VK_RCONTROL},
                              {VK_MENU, VK_LMENU, VK_RMENU}};
  for (const Sides& sides : kSides)
    if (sides.either == either) Press(either, IsKeyDown(sides.left) || IsKeyDown(sides.right));
}

}  // namespace

void SetKeyDown(int virtualKey, bool down) {
  if (!IsKey(virtualKey)) return;
  Press(virtualKey, down);
  const int either = EitherSide(virtualKey);
  if (either != virtualKey) FollowSides(either);
}

bool IsKeyDown(int virtualKey) {
  return IsKey(virtualKey) && KeyAt(virtualKey).down;
}

void ReadKeyState() {
  const display::Display& display = display::Current();
  for (int key = 1; key < kKeyCount; ++key)
    KeyAt(key) = {display.IsKeyDown(key), display.IsKeyToggled(key)};
}

void ReleaseAllKeys() {
  for (Key& key : CurrentSession().keys) key.down = false;
}

WPARAM MouseKeys() {
  struct Bit {
    int virtualKey;
    WPARAM bit;
  };
  constexpr Bit kBits[] = {{VK_LBUTTON, MK_LBUTTON},   {VK_RBUTTON, MK_RBUTTON},
                           {VK_MBUTTON, MK_MBUTTON},   {VK_XBUTTON1, MK_XBUTTON1},
                           {VK_XBUTTON2, MK_XBUTTON2}, {VK_SHIFT, MK_SHIFT},
                           {VK_CONTROL, MK_CONTROL}};
  WPARAM keys = 0;
  for (const Bit& b : kBits)
    if (IsKeyDown(b.virtualKey)) keys |= b.bit;
  return keys;
}

}  // namespace core

std::int16_t GetKeyState(int virtualKey) {
  if (!core::IsKey(virtualKey)) return 0;
  const core::Key& key = core::KeyAt(virtualKey);
  return static_cast<std::int16_t>((key.down ? -0x8000 : 0) | (key.toggled ? 1 : 0));
}
