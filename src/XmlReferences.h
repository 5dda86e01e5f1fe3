#pragma once

#include <cstddef>
#include <string_view>

namespace Wexa {

// Where the text of an XML document names an entity that XML does not define and the document does
// not declare, such as "&copy;"; npos when it nowhere does. An "&" that starts no reference is
// none.
template <typename Char>
std::size_t FindUndefinedEntity(std::basic_string_view<Char> text);

}  // namespace Wexa
