#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "LogFont.h"

namespace Wexa {

// The languages whose strings files are read.
struct Languages {
  std::wstring current;
  std::wstring fallback;
};

// What is wrong with a part of a strings file, which is passed over.
struct StringsFault {
  std::size_t offset;
  std::wstring reason;
};

// Adds the texts of a strings file, well-formed UTF-8, by their ids, and sets the default font
// where the file names one. Ids that are there already keep their text. A file for another language
// gives nothing. Throws XmlParseError for a text that is not well-formed.
std::vector<StringsFault> LoadStringsText(std::string text, const Languages& languages,
                                          std::unordered_map<std::wstring, std::wstring>& texts,
                                          logFont& font);

}  // namespace Wexa
