#pragma once

#include <optional>
#include <string>

#include "TSTranslationUnit.h"

namespace Wexa {

// What a TS file says that its messages do not, places as offsets.
struct TsReport {
  std::optional<std::size_t> bad;       // the line number that cannot be read
  std::optional<std::size_t> relative;  // the first one with a sign
  bool isTs = false;
  std::optional<std::wstring> language;  // as the file names it
  std::size_t messages = 0;              // with a location or without
};

// The messages of a TS file, well-formed UTF-8, for `language`; nothing when the text is for
// another one, or no TS file. Throws XmlParseError for a text that is not well-formed, and as
// std::stoi does for a line number that is none. `report` is filled in any case.
std::optional<TSTranslationUnit> LoadTsText(std::string text, const std::wstring& language,
                                            TsReport& report);

}  // namespace Wexa
