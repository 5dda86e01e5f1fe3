#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace Wexa {

// Translations of one form file by line, counted from 1.
using FormLines = std::map<unsigned int, std::wstring>;

// What an empty translation, which an unfinished one has, does with a string.
enum class EmptyTranslations { KeepString, EmptyString };

// The text of a form, well-formed UTF-8, without its line ends, and with the strings on the given
// lines replaced; a string takes its whole lines. A line that holds no string ends the replacing.
std::wstring TranslateForm(std::string_view text, const FormLines& translations,
                           EmptyTranslations empty = EmptyTranslations::KeepString);

// The text of a form with the strings on the given lines replaced and everything around them as it
// was, lines included. A line on which no string element starts ends the replacing. Strings with an
// empty translation stay.
std::wstring TranslateFormInPlace(const std::wstring& text, const FormLines& translations);

// How many strings there are in a form of which the first translation finds none; 0 where it finds
// one. Those marked as not to be translated do not count.
std::size_t CountUnmatched(std::string_view text, const FormLines& translations);
std::size_t CountUnmatched(std::wstring_view text, const FormLines& translations);

}  // namespace Wexa
