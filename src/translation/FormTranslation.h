#pragma once

#include <map>
#include <string>

namespace Wexa {

// Translations of one form file by line, counted from 1.
using FormLines = std::map<unsigned int, std::wstring>;

// The text of a form without its line ends, and with the strings on the given lines replaced. A
// line that holds no string ends the replacing.
std::wstring TranslateForm(const std::wstring& text, const FormLines& translations);

}  // namespace Wexa
