#pragma once

#include <cstdint>
#include <string>

namespace Wexa {

// The font that dialogs are made with, see GetFontInfo in WexaConfig.h.
struct logFont {
  int height = 90;  // tenths of a point
  std::uint8_t charSet = 0;
  std::wstring faceName = L"Tahoma";
};

}  // namespace Wexa
