#include <algorithm>

#include "WexaUtils.h"
#include "platform/FontFamilies.h"

// The fonts of the system.

namespace {

constexpr int kBoldFrom = 501;  // weight

// A name of a family for vertical text begins with "@".
bool IsSpecial(const FontFamily& family) {
  return family.isSymbol || family.name.starts_with(L'@');
}

Wexa::FontData RecordOf(const FontFamily& family) {
  Wexa::FontData record;
  record.faceName = family.name;
  record.bold = family.weight >= kBoldFrom ? 1 : -1;
  record.italic = family.isItalic ? 1 : -1;
  record.specialFont = IsSpecial(family) ? 1 : 0;
  return record;
}

}  // namespace

const std::vector<std::wstring> WexaUtils::symbol_fonts = {
    L"Apple Braille",
    L"Apple Color Emoji",
    L"Apple LiGothic Medium",
    L"Apple LiSung Light",
    L"AppleMyungjo",
    L"Apple Symbols",
    L"AppleGothic",
    L"Dingbats",
    L"Keyboard",
    L"LastResort",
    L"Osaka",
    L"Bodoni Ornaments",
    L"SF Symbols",
    L"DejaVu Sans",
    L"FontAwesome",
    L"Material Design Icons",
    L"OpenSymbol",
    L"Symbola",
    L"Arial Unicode MS",
    L"Segoe UI Symbol",
    L"Wingdings",
    L"Wingdings 2",
    L"Wingdings 3",
    L"Webdings",
    L"Symbol",
    L"Bookshelf Symbol 7",
    L"ZWAdobeF",
    L"MS Outlook",
    L"MS Reference Specialty",
    L"MT Extra",
    L"Marlett",
    L"Hoefler Text Ornaments",
    L"Cambria Math",
    L"Candid",
};

bool WexaUtils::GetSystemFonts(std::vector<Wexa::FontData>& fonts, bool lettersOnly) {
  const std::vector<FontFamily> families = ListFontFamilies();
  for (const FontFamily& family : families) {
    if (!lettersOnly || !IsSpecial(family)) fonts.push_back(RecordOf(family));
  }
  std::ranges::sort(fonts, {}, &Wexa::FontData::faceName);
  return !families.empty();
}
