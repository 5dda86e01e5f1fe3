#pragma once

#include <string>

namespace Wexa::Testing {

struct KeyStroke {
  int virtualKey;
  bool shift;
};

// Where an American keyboard has a character. Others come from a key of no name.
KeyStroke StrokeOf(wchar_t c);
// What the key gives with the keys that are down.
std::u32string TextOf(int virtualKey);

}  // namespace Wexa::Testing
