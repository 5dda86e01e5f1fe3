#pragma once

#include <memory>

#include "platform/Classes.h"

namespace Wexa {

struct FontData;

// The library's default font, as `GetFontInfo` describes it now. Made once per description.
HFONT DialogFont();
// How high fields of one line are, in pixels: 14 units of which the dialog's font is 8 high.
int FieldHeight();
// Whether the record names a face, a size or a style.
bool IsFontSet(const FontData& font);
// The record with what it does not set taken from another.
FontData MergedFont(const FontData& font, const FontData& base);
// The described font; what is not set is taken from the default font.
std::unique_ptr<CFont> MakeFont(const FontData& font);
FontData FontRecordOf(HFONT font);

}  // namespace Wexa
