#pragma once

// Characters made of several keys: dead accents and the Compose key, by the user's locale.

#include <xkbcommon/xkbcommon-compose.h>

#include <optional>
#include <string>

namespace display::x11 {

class Compose {
 public:
  Compose() = default;
  ~Compose();
  Compose(const Compose&) = delete;
  Compose& operator=(const Compose&) = delete;

  // The text that the key completes, empty within a sequence; none when the key is in no sequence.
  std::optional<std::u32string> Feed(xkb_context* context, xkb_keysym_t symbol);
  // Forgets a sequence begun.
  void Reset();

 private:
  void Load(xkb_context* context);

  bool loaded_ = false;
  xkb_compose_state* state_ = nullptr;
};

}  // namespace display::x11
