#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace Wexa {

// As the public conversion does, for bytes that are well-formed, into memory for as many characters
// as bytes. Returns the end.
wchar_t* WidenUtf8(std::string_view bytes, wchar_t* to);
// Where the first character starts that is not well-formed; nothing when all are.
std::optional<std::size_t> FindBadUtf8(std::string_view bytes);
inline bool IsUtf8(std::string_view bytes) {
  return !FindBadUtf8(bytes);
}

}  // namespace Wexa
