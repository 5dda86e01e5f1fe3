#pragma once

#include <string>
#include <string_view>
#include <vector>

// Text as pango wants it, with the way back. What is no character becomes U+FFFD, one for one.
std::string ToUtf8(std::wstring_view text);
// The byte at which each code point starts, and the length at the end.
std::vector<int> Utf8Offsets(std::wstring_view text);
