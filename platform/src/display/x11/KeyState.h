#pragma once

// Which keys and mouse buttons are down, as of the record handed out last: a handler that asks
// sees the state its message was made in, not what the user has done since.

#include <bitset>
#include <cstdint>

#include "Records.h"

namespace display::x11 {

class KeyState {
 public:
  void Apply(const Record& record);
  // What the server says is held, in its own bits.
  void Synchronize(std::uint16_t held);

  bool IsDown(int virtualKey) const;
  bool IsToggled(int virtualKey) const;
  // False until the server has told of the modifiers.
  bool IsKnown() const { return known_; }

 private:
  void Press(const Input& key);
  void Toggle(int virtualKey);

  std::bitset<256> down_;
  bool known_ = false;
  bool capsLock_ = false;
  bool numLock_ = false;
};

}  // namespace display::x11
