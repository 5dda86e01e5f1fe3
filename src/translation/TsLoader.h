#pragma once

#include <optional>
#include <string>

#include "TSTranslationUnit.h"

namespace Wexa {

// Lines of a TS file, counted from 1, whose numbers are not as they should be; 0 for none.
struct TsLines {
  int bad = 0;       // the number that cannot be read
  int relative = 0;  // the first one with a sign
};

// The messages of a TS file for `language`; nothing when the text is for another one, or no TS
// file. Throws XmlParseError for a text that is not well-formed, and as std::stoi does for a line
// number that is none. `lines` is filled in any case.
std::optional<TSTranslationUnit> LoadTsText(std::wstring text, const std::wstring& language,
                                            TsLines& lines);

}  // namespace Wexa
