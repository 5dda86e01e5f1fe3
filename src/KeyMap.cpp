#include "KeyMap.h"

#include <array>

namespace Wexa {

namespace {

using Key = Event::Key;

constexpr int kVirtualKeyCount = 256;

// Native codes from `first` to `last` have the keys from `key` on, in order.
struct KeyRange {
  int first;
  int last;
  Key key;
};

constexpr KeyRange kKeyRanges[] = {
    {8, 9, Key::Backspace}, {12, 13, Key::Clear},       {16, 21, Key::Shift},
    {23, 25, Key::Junja},   {27, 57, Key::Escape},      {65, 90, Key::A},
    {91, 91, Key::Windows}, {92, 92, Key::Windows},     {93, 93, Key::Applications},
    {95, 95, Key::Sleep},   {96, 135, Key::Keypad0},    {144, 145, Key::NumLock},
    {147, 148, Key::Oem93}, {160, 183, Key::LeftShift}, {186, 192, Key::Oem1},
    {219, 223, Key::Oem4},  {225, 231, Key::OemE1},
};

constexpr auto kKeys = [] {
  std::array<std::uint8_t, kVirtualKeyCount> keys{};
  for (const auto& range : kKeyRanges) {
    for (int code = range.first; code <= range.last; ++code) {
      keys[static_cast<unsigned>(code)] =
          static_cast<std::uint8_t>(static_cast<int>(range.key) + code - range.first);
    }
  }
  return keys;
}();

}  // namespace

Event::Key KeyOfVirtualKey(int virtualKey) {
  const bool known = virtualKey >= 0 && virtualKey < kVirtualKeyCount;
  return known ? static_cast<Key>(kKeys[static_cast<unsigned>(virtualKey)]) : Key::None;
}

}  // namespace Wexa
