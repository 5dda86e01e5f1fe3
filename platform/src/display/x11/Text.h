#pragma once

// Texts as the server has them, but for UTF-8 from wide texts: that is graphics/Utf8.h.

#include <string>
#include <string_view>

namespace display::x11 {

// What is no character becomes U+FFFD.
std::u32string FromUtf8(std::string_view bytes);
std::wstring Widen(std::u32string_view text);

// The older encoding, one byte a character; what it lacks becomes "?".
std::string ToLatin1(std::wstring_view text);
std::wstring FromLatin1(std::string_view bytes);

}  // namespace display::x11
