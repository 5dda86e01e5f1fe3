#pragma once

// Key events to records: place, virtual key, and the text that the user's layout gives.

#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon.h>

#include <bitset>
#include <optional>

#include "Compose.h"
#include "display/Display.h"

namespace display::x11 {

class Connection;

class Keyboard {
 public:
  // Announces itself to the server; the layout is read with the first key.
  explicit Keyboard(Connection& connection);
  ~Keyboard();
  Keyboard(const Keyboard&) = delete;
  Keyboard& operator=(const Keyboard&) = delete;

  // The key, its text and its repetition; none for a key that only shifts levels of the layout.
  std::optional<Input> Press(const xcb_key_press_event_t& event);
  std::optional<Input> Release(const xcb_key_release_event_t& event);
  // The keys that are down when a window gets the focus: they repeat there, they do not begin.
  void TakeHeld(const xcb_keymap_notify_event_t& event);
  void FocusLost() { compose_.Reset(); }
  // True for an event of the keyboard extension.
  bool Handle(const xcb_generic_event_t& event);

 private:
  void Announce();
  void LoadLayout();
  void ForgetLayout();
  std::optional<Input> Translate(const xcb_key_press_event_t& event);
  xkb_keysym_t BaseSymbol(xcb_keycode_t code) const;
  std::u32string TextOf(xkb_keysym_t symbol, int virtualKey);

  Connection& connection_;
  std::uint8_t firstEvent_ = 0;  // of the extension; 0 where the server lacks it
  xkb_context* context_ = nullptr;
  xkb_keymap* layout_ = nullptr;
  xkb_state* state_ = nullptr;
  Compose compose_;
  std::bitset<256> pressed_;
};

}  // namespace display::x11
