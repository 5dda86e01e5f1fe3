#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Wexa {

// Whether a label's text is written in tags, as the designing tool's rich-text editor does.
bool IsRichText(std::wstring_view text);

// The text without its tags: paragraphs and breaks become line feeds, entities their characters.
// `bold` becomes 1 when all of the text is bold.
std::wstring PlainTextOf(std::wstring_view richText, std::int32_t& bold);

}  // namespace Wexa
