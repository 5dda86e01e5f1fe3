#pragma once

#include <string>
#include <string_view>

namespace Wexa {

// The text in 16-bit code units, as native records carry it. What is no character becomes U+FFFD.
std::u16string ToUtf16(std::wstring_view text);

}  // namespace Wexa
