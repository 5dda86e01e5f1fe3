#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "WexaExport.h"

namespace Wexa {

// Between UTF-8 and the library's wide texts, which have one character for each code point:
//
//   label.SetText(Wexa::WidenUtf8(name).value_or(L"?"));
//   std::cout << Wexa::NarrowUtf8(edit.GetText());
//
// Any thread.

// A byte-order mark stays a character. Nothing when the bytes are not well-formed UTF-8.
WEXA_API std::optional<std::wstring> WidenUtf8(std::string_view bytes);
// Wide characters that are no code points, surrogates for one, become U+FFFD.
WEXA_API std::string NarrowUtf8(std::wstring_view text);

}  // namespace Wexa
