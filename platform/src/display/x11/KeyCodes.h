#pragma once

// From the server's keys to the native codes: places to set-1 scan codes, symbols to virtual keys.

#include <xcb/xproto.h>
#include <xkbcommon/xkbcommon.h>

namespace display::x11 {

struct KeyPlace {
  int scanCode = 0;
  bool extended = false;
};

KeyPlace PlaceOf(xcb_keycode_t code);

// `base` is the key's symbol without Shift, `effective` the one with all modifiers: Num Lock
// decides what a key of the number pad is. 0 when the key has no virtual key.
int VirtualKeyOf(xkb_keysym_t base, xkb_keysym_t effective, xcb_keycode_t code);

// Keys that only choose which symbols the others give.
bool IsLevelShift(xkb_keysym_t symbol);

}  // namespace display::x11
