#pragma once

#include "platform/Types.h"

struct ControlPalette;

namespace Wexa {

class SkinManager;

// The slots that paint the parts of widgets. Numbers are those of the skin's table.
namespace Slot {
inline constexpr int kInputText = 0;
inline constexpr int kInputDisabledText = 1;
inline constexpr int kInputFace = 2;
inline constexpr int kInputHoverBorder = 3;
inline constexpr int kInputBorder = 4;
inline constexpr int kInputDisabledBorder = 5;
inline constexpr int kInputFocusBorder = 6;
inline constexpr int kPlaceholder = 7;
inline constexpr int kLabelDisabledText = 13;
inline constexpr int kButtonText = 20;
inline constexpr int kButtonDisabledText = 21;
inline constexpr int kButtonPressedText = 22;
inline constexpr int kButtonDisabledFace = 23;
inline constexpr int kButtonFace = 24;
inline constexpr int kButtonDisabledBorder = 25;
inline constexpr int kButtonPressedFace = 26;
inline constexpr int kButtonHoverBorder = 27;
inline constexpr int kCheckBorder = 28;
inline constexpr int kButtonBorder = 30;
inline constexpr int kButtonAccent = 32;
inline constexpr int kCheckText = 33;
inline constexpr int kCheckDisabledText = 34;
inline constexpr int kCheckFace = 36;
inline constexpr int kCheckDisabledBorder = 42;
inline constexpr int kScrollPressedThumb = 44;
inline constexpr int kScrollFace = 45;
inline constexpr int kScrollArrow = 46;
inline constexpr int kScrollThumb = 47;
inline constexpr int kScrollHoverThumb = 48;
inline constexpr int kDialogFace = 74;
inline constexpr int kDialogText = 93;
inline constexpr int kSeparator = 87;
inline constexpr int kGroupBorder = 91;
inline constexpr int kContentFace = 94;
inline constexpr int kSelection = 95;
inline constexpr int kSelectionText = 96;
inline constexpr int kLinkText = 100;
inline constexpr int kLinkPressed = 101;
inline constexpr int kLinkHover = 102;
inline constexpr int kLinkDisabled = 103;
inline constexpr int kTipFace = 118;
inline constexpr int kTipText = 119;
inline constexpr int kTipBorder = 91;
}  // namespace Slot

// Contrasts that texts need, with a margin: enabled ones, and those that are only to be made out.
inline constexpr double kReadable = 4.95;
inline constexpr double kFaintlyReadable = 3;
// What borders of disabled parts need to the ground.
inline constexpr double kFaintlyVisible = 1.5;

COLORREF SlotColor(const SkinManager& skin, int slot);
// The slot's colour for a text on `face`. Where the palette makes that hard to read and nobody set
// the slot, the other slot's colour if that is easier.
COLORREF ReadableColor(const SkinManager& skin, int slot, int otherwise, COLORREF face);
// The slot's colour, unless nobody set it and it differs from `face` by less than `least`: then as
// far towards `text` as that takes.
COLORREF ReadableTint(const SkinManager& skin, int slot, COLORREF text, COLORREF face,
                      double least);
// The slot's colour for what must not look like `text`. Where the palette gives both nearly the
// same colour, or one that differs from `face` by less than `least`, and nobody set the slot, one
// between the text and its face.
COLORREF FaintColor(const SkinManager& skin, int slot, COLORREF text, COLORREF face, double least);
COLORREF DialogBackground(const SkinManager& skin);
// Between 0x00RRGGBB and 0x00BBGGRR.
COLORREF SwapRedAndBlue(int color);

// What all families share: selection, focus, dialog text. The other fills add to it. The palette's
// background is given: what the widget stands on.
void FillCommonPalette(ControlPalette& palette, const SkinManager& skin);
void FillButtonPalette(ControlPalette& palette, const SkinManager& skin);
void FillCheckPalette(ControlPalette& palette, const SkinManager& skin);
void FillInputPalette(ControlPalette& palette, const SkinManager& skin);
// The fill is the accent.
void FillProgressPalette(ControlPalette& palette, const SkinManager& skin);
// The faces carry the link's colours: text at rest, pressedText, hoverFace, disabledText.
void FillLinkPalette(ControlPalette& palette, const SkinManager& skin);

}  // namespace Wexa
