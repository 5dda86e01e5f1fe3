#pragma once

namespace core {

// The set-1 scan code of a key's place on the keyboard and back; 0 where there is none. Left and
// right keys map to their own places, the keys that mean either to the left one.
int ScanCodeOf(int virtualKey);
int KeyOfScanCode(int scanCode);
// The key that means either side, for a left or right one.
int EitherSide(int virtualKey);

}  // namespace core
