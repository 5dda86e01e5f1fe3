#pragma once

// Texts as the server wants them.

#include <string>
#include <string_view>

namespace display::x11 {

// What is no character becomes U+FFFD, in both directions.
std::string ToUtf8(std::wstring_view text);
std::u32string FromUtf8(std::string_view bytes);
std::wstring Widen(std::u32string_view text);

// The older encoding, one byte a character; what it lacks becomes "?".
std::string ToLatin1(std::wstring_view text);
std::wstring FromLatin1(std::string_view bytes);

}  // namespace display::x11
