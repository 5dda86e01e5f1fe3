#pragma once

#include <optional>
#include <string>

#include "TSTranslationUnit.h"

namespace Wexa {

// Places in a TS file whose line numbers are not as they should be, as offsets.
struct TsPlaces {
  std::optional<std::size_t> bad;       // the number that cannot be read
  std::optional<std::size_t> relative;  // the first one with a sign
};

// The messages of a TS file, well-formed UTF-8, for `language`; nothing when the text is for
// another one, or no TS file. Throws XmlParseError for a text that is not well-formed, and as
// std::stoi does for a line number that is none. `places` is filled in any case.
std::optional<TSTranslationUnit> LoadTsText(std::string text, const std::wstring& language,
                                            TsPlaces& places);

}  // namespace Wexa
