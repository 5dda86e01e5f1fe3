#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Wexa {

// Whether the first character of a form file's bytes, after an optional byte-order mark and white
// space, is "<". An encrypted form is none.
bool LooksLikePlainForm(std::string_view bytes);

// The text of the bytes when they look so and are well-formed UTF-8. The mark is left out.
std::optional<std::wstring> PlainFormText(std::string_view bytes);

// Whether `word`, such as "Qt::Vertical", occurs in an enumeration text. Files of newer designers
// name the enumeration too ("Qt::Orientation::Vertical"); that matches as well.
bool HasEnumWord(std::wstring_view text, std::wstring_view word);

// Whether `word` in either of these spellings is the whole text.
bool IsEnumWord(std::wstring_view text, std::wstring_view word);

// The decimal integer a text starts with, as std::stoi reads it. Throws std::invalid_argument
// "invalid stoi argument" or std::out_of_range "stoi argument out of range".
int FormInteger(const std::wstring& text);
// The decimal number a text starts with, whatever the locale. Throws the same with "stod".
double FormNumber(const std::wstring& text);

}  // namespace Wexa
