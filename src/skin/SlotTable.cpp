#include "SlotTable.h"

#include "platform/SystemColors.h"

namespace Wexa {

enum class ColorKey : std::uint8_t {
  PrimaryText,
  DisabledText,
  InputBG,
  HoverButtonBorder,
  HoverInputBorder,
  ButtonBorder,
  InputBorder,
  DisableButtonBorder,
  DisableInputBorder,
  AccentColor,
  SelectedInputBorder,
  PlaceholderText,
  FrameBorder,
  ContentBG,
  HoverBG,
  ButtonText,
  DisableButtonText,
  PrimaryBG,
  CheckOrRadioBorder,
  HoverButtonBG,
  ScrollbarThumbColor,
  ScrollbarBG,
  HoverScrollbarThumbColor,
  AccentButtonText,
  PressAccentColor,
  HoverAccentColor,
  DisableAccentColor,
  ActiveBG,
  WhiteBG,
  SpacingLine,
  SecondBG,
  SecondaryText,
  LinkRest,
  LinkPressed,
  LinkHover,
  LinkDisabled,
  LightSpacingLine,
};

constexpr std::array<const wchar_t*, kColorKeyCount> kColorKeyNames = {
    L"Primary_text",
    L"Disabled_text",
    L"Input_BG",
    L"Hover_button_border",
    L"Hover_input_border",
    L"Button_border",
    L"Input_border",
    L"Disable_Button_border",
    L"Disable_input_border",
    L"Accent_color",
    L"Selected_input_border",
    L"Placeholder_text",
    L"Frame_border",
    L"Content_BG",
    L"Hover_BG",
    L"Button_text",
    L"Disable_button_text",
    L"Primary_BG",
    L"Check_or_Radio_border",
    L"Hover_button_BG",
    L"ScrollbarThumb_color",
    L"Scrollbar_BG",
    L"Hover_scrollbarThumb_color",
    L"Accent_button_text",
    L"Press_accent_color",
    L"Hover_accent_color",
    L"Disable_accent_color",
    L"Active_BG",
    L"White_BG",
    L"Spacing_line",
    L"Second_BG",
    L"Secondary_text",
    L"Link_rest",
    L"Link_pressed",
    L"Link_hover",
    L"Link_disabled",
    L"Light_spacing_line",
};

namespace {

using enum ColorKey;

constexpr PaletteEntry Rgb(std::uint32_t color) {
  return {PaletteEntry::Kind::Color, color};
}
constexpr PaletteEntry Sys(int index) {
  return {PaletteEntry::Kind::System, static_cast<std::uint32_t>(index)};
}
constexpr PaletteEntry Same(std::uint32_t slot) {
  return {PaletteEntry::Kind::SameAs, slot};
}

constexpr PaletteEntry kUnchanged;
constexpr PaletteEntry kButtonText = Sys(COLOR_BTNTEXT);
constexpr PaletteEntry kGrayText = Sys(COLOR_GRAYTEXT);
constexpr PaletteEntry kButtonFace = Sys(COLOR_BTNFACE);
constexpr PaletteEntry kWindow = Sys(COLOR_WINDOW);
constexpr PaletteEntry kWindowText = Sys(COLOR_WINDOWTEXT);
constexpr PaletteEntry kWindowFrame = Sys(COLOR_WINDOWFRAME);
constexpr PaletteEntry kHighlight = Sys(COLOR_HIGHLIGHT);
constexpr PaletteEntry kHighlightText = Sys(COLOR_HIGHLIGHTTEXT);
constexpr PaletteEntry kLight3D = Sys(COLOR_3DLIGHT);
constexpr PaletteEntry kCaption = Sys(COLOR_ACTIVECAPTION);
constexpr PaletteEntry kBorder = Sys(COLOR_ACTIVEBORDER);
constexpr PaletteEntry kDesktop = Sys(COLOR_BACKGROUND);

// A slot of one name in both maps.
constexpr SlotRow Slot(ColorKey key, PaletteEntry light, PaletteEntry dark, PaletteEntry contrast) {
  return {key, key, light, dark, contrast};
}

}  // namespace

// clang-format off
// Colours are 0xBBGGRR: in the light, the dark and the high-contrast palette.
constexpr std::array<SlotRow, SkinManager::kSlotCount> kSlotTable = {{
    Slot(PrimaryText, Rgb(0x000000), Rgb(0xFFFFFF), kButtonText),  // 0
    Slot(DisabledText, kGrayText, Rgb(0xFFFFFF), kGrayText),  // 1
    Slot(InputBG, Rgb(0xFFFFFF), Rgb(0x333333), kButtonFace),  // 2
    {HoverButtonBorder, HoverInputBorder, Rgb(0x171717), Rgb(0x999999), kHighlight},  // 3
    {ButtonBorder, InputBorder, Rgb(0x7A7A7A), Rgb(0x666666), kButtonText},  // 4
    {DisableButtonBorder, DisableInputBorder, Rgb(0xF0E9E6), Rgb(0x424242), kGrayText},  // 5
    {AccentColor, SelectedInputBorder, Rgb(0xD77800), Rgb(0xFF80D3), kHighlight},  // 6
    Slot(PlaceholderText, kGrayText, Rgb(0xFFFFFF), kGrayText),  // 7
    Slot(PrimaryText, Rgb(0x000000), Rgb(0xFFFFFF), kButtonText),  // 8
    Slot(DisabledText, kGrayText, Rgb(0xFFFFFF), kGrayText),  // 9
    Slot(FrameBorder, Rgb(0x0088FF), Rgb(0x666666), kButtonText),  // 10
    Slot(ContentBG, Rgb(0xFFFFFF), Rgb(0x333333), kButtonFace),  // 11
    Slot(PrimaryText, Rgb(0x000000), Rgb(0xFFFFFF), kButtonText),  // 12
    Slot(DisabledText, kGrayText, Rgb(0xC8C8C8), kGrayText),  // 13
    Slot(ContentBG, Rgb(0xFFFFFF), Rgb(0x333333), kButtonFace),  // 14
    Slot(ContentBG, Rgb(0xE1E1E1), Rgb(0x151515), kWindow),  // 15
    Slot(HoverBG, Rgb(0x0088FF), Rgb(0x999999), kHighlight),  // 16
    Slot(FrameBorder, Rgb(0x0088FF), Rgb(0x666666), kButtonText),  // 17
    Slot(AccentColor, Rgb(0x0088FF), Rgb(0xFF80D3), kHighlight),  // 18
    Slot(PlaceholderText, kGrayText, Rgb(0xFFFFFF), kGrayText),  // 19
    Slot(ButtonText, Rgb(0x000000), Rgb(0xFFFFFF), kButtonText),  // 20
    Slot(DisableButtonText, Rgb(0x77737C), Rgb(0xD4D4D4), kGrayText),  // 21
    Slot(ButtonText, Rgb(0x000000), Rgb(0xFFFFFF), kHighlightText),  // 22
    Slot(InputBG, Rgb(0xE2E2E2), Rgb(0x333333), kButtonFace),  // 23
    Slot(PrimaryBG, Rgb(0xFFFFFF), Rgb(0x333333), kButtonFace),  // 24
    Slot(DisableButtonBorder, Rgb(0xE2E2E2), Rgb(0x4A4A4A), kHighlight),  // 25
    Slot(InputBG, Rgb(0xCCCCCC), Rgb(0x333333), kWindow),  // 26
    Slot(HoverButtonBorder, Rgb(0xD77800), Rgb(0x999999), kHighlight),  // 27
    {CheckOrRadioBorder, ButtonText, Rgb(0x999999), Rgb(0xD4D4D4), kButtonText},  // 28
    {DisableButtonBorder, HoverButtonBG, Same(27), Same(27), Same(27)},  // 29
    Slot(ButtonBorder, Rgb(0x999999), Rgb(0x666666), kButtonText),  // 30
    Slot(DisableButtonBorder, Rgb(0xDCDCDC), Rgb(0x666666), kGrayText),  // 31
    Slot(AccentColor, Same(27), Rgb(0xFF80D3), kHighlight),  // 32
    Slot(PrimaryText, Rgb(0x000000), Rgb(0xFFFFFF), kButtonText),  // 33
    Slot(DisabledText, Rgb(0x77737C), Rgb(0xD4D4D4), kGrayText),  // 34
    Slot(PrimaryText, Rgb(0xFFFFFF), Rgb(0xFFFFFF), kHighlightText),  // 35
    Slot(ContentBG, Rgb(0xFFFFFF), Rgb(0x333333), kButtonFace),  // 36
    Slot(PrimaryBG, Rgb(0xFFFFFF), kUnchanged, kUnchanged),  // 37
    Slot(FrameBorder, Rgb(0xCCCCCC), Rgb(0x333333), kWindow),  // 38
    Slot(HoverBG, Rgb(0xD77800), Rgb(0x999999), kHighlight),  // 39
    Slot(PrimaryText, Rgb(0x999999), Rgb(0xD4D4D4), kButtonText),  // 40
    Slot(FrameBorder, Rgb(0x999999), Rgb(0x666666), kButtonText),  // 41
    Slot(FrameBorder, Rgb(0xDCDCDC), Rgb(0x666666), kGrayText),  // 42
    Slot(AccentColor, Rgb(0xFF0000), Rgb(0x999999), kHighlight),  // 43
    Slot(ScrollbarThumbColor, Rgb(0x333333), Rgb(0xFFFFFF), kHighlight),  // 44
    Slot(ScrollbarBG, Rgb(0xFFFFFF), Rgb(0x333333), kButtonFace),  // 45
    Slot(PrimaryText, Rgb(0x7F7F7F), Rgb(0x7F7F7F), kButtonText),  // 46
    Slot(ScrollbarThumbColor, Rgb(0x858585), Rgb(0x696969), kButtonText),  // 47
    Slot(HoverScrollbarThumbColor, Rgb(0x9B9B9B), Rgb(0xB5B5B5), kWindowText),  // 48
    Slot(FrameBorder, kWindowFrame, Rgb(0x333333), kWindowFrame),  // 49
    Slot(AccentButtonText, kButtonText, Rgb(0xFFFFFF), kButtonText),  // 50
    Slot(AccentButtonText, Rgb(0xFFFFFF), Rgb(0xFFFFFF), kHighlight),  // 51
    Slot(AccentColor, Rgb(0x4A4A4A), Rgb(0x4A4A4A), kButtonFace),  // 52
    Slot(AccentColor, Rgb(0xD77800), Rgb(0x999999), kHighlight),  // 53
    Slot(AccentColor, Rgb(0xADADAD), Rgb(0x666666), kButtonText),  // 54
    Slot(ContentBG, Rgb(0x000000), Rgb(0xFFFFFF), kButtonFace),  // 55
    Slot(PressAccentColor, kUnchanged, Rgb(0xFF80D3), kWindow),  // 56
    Slot(AccentButtonText, kButtonText, Rgb(0xFFFFFF), kButtonText),  // 57
    Slot(HoverAccentColor, Rgb(0xFBF1E5), Rgb(0xCC57AF), kHighlight),  // 58
    Slot(PressAccentColor, Rgb(0xF7E4CC), Rgb(0x535353), kButtonFace),  // 59
    Slot(AccentColor, Rgb(0x4A4A4A), Rgb(0x4A4A4A), Rgb(0xFF00FF)),  // 60
    Slot(AccentColor, Rgb(0xE1E1E1), Rgb(0x1D1D1D), kButtonFace),  // 61
    Slot(DisableAccentColor, Rgb(0xEFEFEF), Rgb(0x9B2870), kWindow),  // 62
    Slot(AccentButtonText, Rgb(0x838383), Rgb(0x6D6D6D), kGrayText),  // 63
    Slot(DisableAccentColor, Rgb(0xCCCCCC), Rgb(0x464343), kGrayText),  // 64
    Slot(PressAccentColor, Rgb(0x995400), kUnchanged, kUnchanged),  // 65
    Slot(PressAccentColor, Rgb(0x000000), Rgb(0x000000), kButtonFace),  // 66
    Slot(AccentColor, Same(58), Same(58), Same(58)),  // 67
    Slot(AccentButtonText, Same(50), Same(50), Same(50)),  // 68
    Slot(PrimaryText, kUnchanged, Rgb(0xFFFFFF), kButtonText),  // 69
    Slot(FrameBorder, kUnchanged, Rgb(0x767676), kLight3D),  // 70
    Slot(PrimaryText, kUnchanged, Rgb(0xFFFFFF), kButtonText),  // 71
    Slot(DisabledText, kUnchanged, Rgb(0xC8C8C8), kGrayText),  // 72
    Slot(PrimaryText, kUnchanged, Rgb(0xFFFFFF), kHighlightText),  // 73
    Slot(ActiveBG, kButtonFace, Rgb(0x4A4A4A), kButtonFace),  // 74
    Slot(FrameBorder, kUnchanged, Rgb(0x999999), kHighlight),  // 75
    Slot(FrameBorder, kUnchanged, Rgb(0x656565), kWindowText),  // 76
    Slot(PrimaryText, kUnchanged, Rgb(0xFFFFFF), kWindowText),  // 77
    {WhiteBG, ContentBG, Rgb(0xFFFFFF), Rgb(0x333333), kWindow},  // 78
    Slot(HoverAccentColor, kUnchanged, Rgb(0x999999), kHighlightText),  // 79
    Slot(FrameBorder, kUnchanged, Rgb(0x767676), kCaption),  // 80
    Slot(PrimaryText, kUnchanged, Rgb(0x656565), kCaption),  // 81
    Slot(PrimaryText, Rgb(0x000000), Rgb(0xFFFFFF), kButtonText),  // 82
    Slot(PrimaryText, Rgb(0x000000), Rgb(0xFFFFFF), kHighlightText),  // 83
    Slot(DisabledText, Rgb(0x6D6D6D), Rgb(0x767676), kGrayText),  // 84
    Slot(DisabledText, Rgb(0xA3A3A3), Rgb(0x767676), kGrayText),  // 85
    Slot(ContentBG, Rgb(0xFFFFFF), Rgb(0x333333), kButtonFace),  // 86
    Slot(SpacingLine, Rgb(0xD7D7D7), Rgb(0x424242), kWindowText),  // 87
    Slot(PrimaryText, Rgb(0xD4D4D4), Rgb(0x999999), kHighlight),  // 88
    Slot(PrimaryText, Rgb(0xD4D4D4), Rgb(0x999999), kButtonFace),  // 89
    Slot(DisabledText, Rgb(0xE4E4E4), Rgb(0x333333), kButtonFace),  // 90
    Slot(FrameBorder, Rgb(0xCCCCCC), Rgb(0x666666), kWindowText),  // 91
    Slot(ContentBG, Rgb(0xD8D8D8), Rgb(0x999999), kWindow),  // 92
    Slot(PrimaryText, kWindowText, Rgb(0xE6E6E6), kWindowText),  // 93
    Slot(ContentBG, kWindow, Rgb(0x4A4A4A), kWindow),  // 94
    Slot(ActiveBG, kHighlight, Rgb(0xFF80D3), kHighlight),  // 95
    Slot(AccentColor, kHighlightText, kHighlightText, kHighlightText),  // 96
    {SecondBG, HoverBG, kButtonFace, Rgb(0x999999), kHighlightText},  // 97
    Slot(AccentColor, kWindowText, Rgb(0xE6E6E6), kHighlightText),  // 98
    Slot(SecondaryText, kWindowText, Rgb(0xE6E6E6), kHighlightText),  // 99
    Slot(LinkRest, kWindowText, kWindowText, kWindowText),  // 100
    Slot(LinkPressed, kWindowText, kWindowText, kWindowText),  // 101
    Slot(LinkHover, kHighlight, kHighlight, kHighlight),  // 102
    Slot(LinkDisabled, Rgb(0xE5C8B3), Rgb(0x7A7357), kGrayText),  // 103
    Slot(SecondaryText, Rgb(0x333333), Rgb(0xFFFFFF), kWindowText),  // 104
    Slot(PrimaryText, Rgb(0xB4B4B4), Rgb(0xFFFFFF), kBorder),  // 105
    Slot(SecondBG, Rgb(0xFFFFFF), Rgb(0x4A4A4A), kDesktop),  // 106
    Slot(LightSpacingLine, Rgb(0xC8C8C8), Rgb(0xFFFFFF), kWindowFrame),  // 107
    Slot(PrimaryText, kWindowText, Rgb(0xFFFFFF), kWindowText),  // 108
    Slot(PrimaryText, kWindowText, Rgb(0xFFFFFF), kHighlightText),  // 109
    Slot(SecondBG, Rgb(0xF9EBD9), Rgb(0x999999), kHighlight),  // 110
    Slot(PrimaryText, kWindowText, Rgb(0xFFFFFF), kWindowText),  // 111
    Slot(ScrollbarThumbColor, kWindowText, Rgb(0xFFFFFF), kHighlightText),  // 112
    Slot(PrimaryText, Rgb(0x000000), Rgb(0xFFFFFF), kButtonText),  // 113
    Slot(DisabledText, Rgb(0x8B8B8B), Rgb(0x8B8B8B), kGrayText),  // 114
    {WhiteBG, ContentBG, kHighlightText, Rgb(0x4A4A4A), kButtonFace},  // 115
    Slot(PrimaryText, Rgb(0xF0E9E6), Rgb(0x242424), kWindowFrame),  // 116
    Slot(ContentBG, Rgb(0xFFFFFF), Rgb(0x999999), kHighlight),  // 117
    Slot(ContentBG, Rgb(0xFFFFFF), Rgb(0x4A4A4A), kWindow),  // 118
    Slot(PrimaryText, Rgb(0x000000), Rgb(0xFFFFFF), kButtonText),  // 119
    Slot(FrameBorder, Rgb(0xE6E6E6), Rgb(0x767676), kWindowFrame),  // 120
    Slot(PrimaryText, Rgb(0x000000), Rgb(0xFFFFFF), kHighlightText),  // 121
}};
// clang-format on

}  // namespace Wexa
