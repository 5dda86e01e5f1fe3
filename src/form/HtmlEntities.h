#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace Wexa {

// A character that HTML writes as "&copy;", "&#169;" or "&#xA9;".
struct HtmlEntity {
  wchar_t character;
  std::size_t length;  // of what is written
};

// The entity that the text starts with; nothing when it starts with none that has a character.
std::optional<HtmlEntity> HtmlEntityAt(std::wstring_view text);

}  // namespace Wexa
