#pragma once

#include <optional>
#include <string>

#include "TSTranslationUnit.h"

namespace Wexa {

// The messages of a TS file for `language`; nothing when the text is for another one, or no TS
// file. Throws rapidxml::parse_error for a text that is not well-formed, and as std::stoi does for
// a line number that is none.
std::optional<TSTranslationUnit> LoadTsText(std::wstring text, const std::wstring& language);

}  // namespace Wexa
