#include "KeyState.h"

#include <xcb/xcb.h>

#include "platform/VirtualKeys.h"

namespace display::x11 {
namespace {

constexpr int kRightShiftScanCode = 0x36;

struct Held {
  std::uint16_t bit;
  int keys[2];  // one of them is down when the bit is set, the first where nothing else is known
};

constexpr Held kHeld[] = {{XCB_MOD_MASK_SHIFT, {VK_LSHIFT, VK_RSHIFT}},
                          {XCB_MOD_MASK_CONTROL, {VK_LCONTROL, VK_RCONTROL}},
                          {XCB_MOD_MASK_1, {VK_LMENU, VK_RMENU}},
                          {XCB_BUTTON_MASK_1, {VK_LBUTTON, VK_LBUTTON}},
                          {XCB_BUTTON_MASK_2, {VK_MBUTTON, VK_MBUTTON}},
                          {XCB_BUTTON_MASK_3, {VK_RBUTTON, VK_RBUTTON}}};

// The key of its side of the keyboard.
std::size_t Sided(const Input& key) {
  switch (key.virtualKey) {
    case VK_SHIFT: return key.scanCode == kRightShiftScanCode ? VK_RSHIFT : VK_LSHIFT;
    case VK_CONTROL: return key.extendedKey ? VK_RCONTROL : VK_LCONTROL;
    case VK_MENU: return key.extendedKey ? VK_RMENU : VK_LMENU;
    default: return static_cast<std::size_t>(key.virtualKey & 0xFF);
  }
}

std::size_t KeyOf(MouseButton button) {
  switch (button) {
    case MouseButton::Left: return VK_LBUTTON;
    case MouseButton::Right: return VK_RBUTTON;
    case MouseButton::Middle: return VK_MBUTTON;
    case MouseButton::Extra1: return VK_XBUTTON1;
    case MouseButton::Extra2: return VK_XBUTTON2;
  }
  return VK_LBUTTON;
}

}  // namespace

void KeyState::Apply(const Record& record) {
  if (record.held) Synchronize(*record.held);
  const Input& input = record.input;
  switch (input.kind) {
    case Input::Kind::KeyDown: Press(input); break;
    case Input::Kind::KeyUp: down_.reset(Sided(input)); break;
    case Input::Kind::ButtonDown: down_.set(KeyOf(input.button)); break;
    case Input::Kind::ButtonUp: down_.reset(KeyOf(input.button)); break;
    case Input::Kind::FocusOut: down_.reset(); break;
    default: break;
  }
}

void KeyState::Press(const Input& key) {
  down_.set(Sided(key));
  if (!key.repeated) Toggle(key.virtualKey);
}

void KeyState::Toggle(int virtualKey) {
  if (virtualKey == VK_CAPITAL) capsLock_ = !capsLock_;
  if (virtualKey == VK_NUMLOCK) numLock_ = !numLock_;
}

void KeyState::Synchronize(std::uint16_t held) {
  for (const auto& [bit, keys] : kHeld) {
    const auto first = static_cast<std::size_t>(keys[0]);
    const auto second = static_cast<std::size_t>(keys[1]);
    if (!(held & bit)) {
      down_.reset(first).reset(second);
    } else if (!down_[second]) {
      down_.set(first);
    }
  }
  capsLock_ = held & XCB_MOD_MASK_LOCK;
  numLock_ = held & XCB_MOD_MASK_2;
  known_ = true;
}

bool KeyState::IsDown(int virtualKey) const {
  switch (virtualKey) {
    case VK_SHIFT: return down_[VK_LSHIFT] || down_[VK_RSHIFT];
    case VK_CONTROL: return down_[VK_LCONTROL] || down_[VK_RCONTROL];
    case VK_MENU: return down_[VK_LMENU] || down_[VK_RMENU];
    default:
      return virtualKey >= 0 && virtualKey < 256 && down_[static_cast<std::size_t>(virtualKey)];
  }
}

bool KeyState::IsToggled(int virtualKey) const {
  return (virtualKey == VK_CAPITAL && capsLock_) || (virtualKey == VK_NUMLOCK && numLock_);
}

}  // namespace display::x11
