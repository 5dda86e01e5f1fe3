#pragma once

#include <optional>
#include <string_view>

namespace Wexa {

// Where the elements of an XML text first are nested more than `limit` deep: a cheap look at the
// tags that protects recursive parsers. Texts that are not well-formed are looked at as far as a
// parser would get.
std::optional<std::size_t> FindNestingBeyond(std::wstring_view text, int limit);

}  // namespace Wexa
