#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Wexa {

// One wide character for each code point; a byte-order mark stays. Nothing when the bytes are not
// well-formed UTF-8.
std::optional<std::wstring> WidenUtf8(std::string_view bytes);
// The same for bytes that are, into memory for as many characters as bytes. Returns the end.
wchar_t* WidenUtf8(std::string_view bytes, wchar_t* to);
bool IsUtf8(std::string_view bytes);
// Wide characters that are no code points become U+FFFD.
std::string NarrowUtf8(std::wstring_view text);

}  // namespace Wexa
