#include "MFC/base/WidgetColors.h"

#include "SkinManager.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

bool IsHighContrast(const SkinManager& skin) {
  return skin.GetSkinMode() == SkinMode::HCMDark;
}

// The slot's colour for what lies under a text, moved away from the text as far as that needs.
COLORREF ReadableGround(const SkinManager& skin, int slot, COLORREF text) {
  constexpr COLORREF kBlack = RGB(0, 0, 0);
  constexpr COLORREF kWhite = RGB(255, 255, 255);
  const COLORREF end = Contrast(kBlack, text) > Contrast(kWhite, text) ? kBlack : kWhite;
  return ReadableTint(skin, slot, end, text, kReadable);
}

// The slot's colour, brought as far away from the ground as a border needs.
COLORREF DisabledBorder(const ControlPalette& palette, const SkinManager& skin, int slot) {
  return ReadableTint(skin, slot, palette.disabledText, palette.background, kFaintlyVisible);
}

// The slot's colour where somebody set it.
COLORREF SetColor(const SkinManager& skin, int slot, COLORREF otherwise) {
  return skin.Slot(slot).IsChanged() ? SlotColor(skin, slot) : otherwise;
}

// A palette without a face of its own for pressed buttons lends them the accent.
void FillPressedButton(ControlPalette& palette, const SkinManager& skin) {
  palette.pressedFace = SlotColor(skin, Slot::kButtonPressedFace);
  palette.pressedText =
      ReadableColor(skin, Slot::kButtonPressedText, Slot::kButtonText, palette.pressedFace);
  if (skin.Slot(Slot::kButtonPressedFace).IsChanged() || palette.pressedFace != palette.face)
    return;
  palette.pressedFace = palette.accent;
  palette.pressedText = palette.accentText;
}

// A disabled button differs from an enabled one, and its border from that under the pointer.
void FillDisabledButton(ControlPalette& palette, const SkinManager& skin) {
  palette.disabledFace = SlotColor(skin, Slot::kButtonDisabledFace);
  if (!skin.Slot(Slot::kButtonDisabledFace).IsChanged() && palette.disabledFace == palette.face)
    palette.disabledFace = palette.background;
  palette.disabledText = FaintColor(skin, Slot::kButtonDisabledText, palette.text,
                                    palette.disabledFace, kFaintlyReadable);
  palette.disabledBorder = DisabledBorder(palette, skin, Slot::kButtonDisabledBorder);
  if (!skin.Slot(Slot::kButtonDisabledBorder).IsChanged() &&
      palette.disabledBorder == palette.hoverBorder)
    palette.disabledBorder = palette.disabledText;
}

// The palettes have one for buttons, which can be dimmer than a check box at rest.
COLORREF CheckHoverBorder(const ControlPalette& palette, const SkinManager& skin) {
  const COLORREF color = SlotColor(skin, Slot::kButtonHoverBorder);
  const bool stands = skin.Slot(Slot::kButtonHoverBorder).IsChanged() || IsHighContrast(skin) ||
                      Contrast(color, palette.face) >= Contrast(palette.border, palette.face);
  return stands ? color : SlotColor(skin, Slot::kButtonText);
}

}  // namespace

COLORREF SlotColor(const SkinManager& skin, int slot) {
  return static_cast<COLORREF>(static_cast<unsigned long>(skin.Slot(slot)));
}

COLORREF ReadableColor(const SkinManager& skin, int slot, int otherwise, COLORREF face) {
  const COLORREF color = SlotColor(skin, slot);
  if (skin.Slot(slot).IsChanged() || Contrast(color, face) >= kReadable) return color;
  const COLORREF other = SlotColor(skin, otherwise);
  return Contrast(other, face) > Contrast(color, face) ? other : color;
}

COLORREF ReadableTint(const SkinManager& skin, int slot, COLORREF text, COLORREF face,
                      double least) {
  const COLORREF color = SlotColor(skin, slot);
  if (skin.Slot(slot).IsChanged()) return color;
  COLORREF tint = color;
  for (int percent = 10; percent <= 100 && Contrast(tint, face) < least; percent += 10)
    tint = MixColors(color, text, percent);
  return tint;
}

COLORREF FaintColor(const SkinManager& skin, int slot, COLORREF text, COLORREF face, double least) {
  constexpr int kFaint = 40;
  constexpr double kApart = 1.8;
  const COLORREF color = SlotColor(skin, slot);
  if (skin.Slot(slot).IsChanged() || IsHighContrast(skin)) return color;
  const bool fits = Contrast(color, text) >= kApart && Contrast(color, face) >= least;
  return fits ? color : MixColors(text, face, kFaint);
}

COLORREF DialogBackground(const SkinManager& skin) {
  return SlotColor(skin, Slot::kDialogFace);
}

COLORREF SwapRedAndBlue(int color) {
  auto word = static_cast<COLORREF>(color);
  return RGB(GetBValue(word), GetGValue(word), GetRValue(word));
}

void FillCommonPalette(ControlPalette& palette, const SkinManager& skin) {
  palette.face = palette.background;
  palette.disabledFace = palette.background;
  palette.text = SlotColor(skin, Slot::kDialogText);
  palette.disabledText = FaintColor(skin, Slot::kLabelDisabledText, palette.text,
                                    palette.background, kFaintlyReadable);
  palette.border = SlotColor(skin, Slot::kGroupBorder);
  palette.disabledBorder = palette.border;
  palette.hoverFace = palette.face;
  palette.hoverBorder = palette.border;
  palette.pressedFace = palette.face;
  palette.pressedText = palette.text;
  palette.accent = SlotColor(skin, Slot::kButtonAccent);
  palette.accentText = ReadableColor(skin, Slot::kSelectionText, Slot::kInputFace, palette.accent);
  palette.selectionText = ReadableColor(skin, Slot::kSelectionText, Slot::kInputFace,
                                        SlotColor(skin, Slot::kSelection));
  palette.selection = ReadableGround(skin, Slot::kSelection, palette.selectionText);
}

void FillButtonPalette(ControlPalette& palette, const SkinManager& skin) {
  FillCommonPalette(palette, skin);
  palette.face = SlotColor(skin, Slot::kButtonFace);
  palette.hoverFace = palette.face;
  palette.text = SlotColor(skin, Slot::kButtonText);
  FillPressedButton(palette, skin);
  palette.border = SlotColor(skin, Slot::kButtonBorder);
  palette.hoverBorder = SlotColor(skin, Slot::kButtonHoverBorder);
  FillDisabledButton(palette, skin);
}

void FillCheckPalette(ControlPalette& palette, const SkinManager& skin) {
  FillCommonPalette(palette, skin);
  palette.face = SlotColor(skin, Slot::kCheckFace);
  palette.hoverFace = palette.face;
  palette.pressedFace = palette.face;
  palette.disabledFace = SetColor(skin, Slot::kCheckFace, palette.background);
  palette.text = SetColor(skin, Slot::kCheckText, palette.text);
  palette.disabledText = SetColor(skin, Slot::kCheckDisabledText, palette.disabledText);
  palette.border = SlotColor(skin, Slot::kCheckBorder);
  palette.hoverBorder = CheckHoverBorder(palette, skin);
  palette.disabledBorder = DisabledBorder(palette, skin, Slot::kCheckDisabledBorder);
}

void FillInputPalette(ControlPalette& palette, const SkinManager& skin) {
  FillCommonPalette(palette, skin);
  palette.face = SlotColor(skin, Slot::kInputFace);
  palette.hoverFace = palette.face;
  palette.pressedFace = palette.face;
  palette.disabledFace = palette.background;
  palette.text = SlotColor(skin, Slot::kInputText);
  palette.pressedText = palette.text;
  palette.disabledText = FaintColor(skin, Slot::kInputDisabledText, palette.text,
                                    palette.disabledFace, kFaintlyReadable);
  palette.placeholder = FaintColor(skin, Slot::kPlaceholder, palette.text, palette.face, kReadable);
  palette.border = SlotColor(skin, Slot::kInputBorder);
  palette.hoverBorder = SlotColor(skin, Slot::kInputHoverBorder);
  palette.disabledBorder = DisabledBorder(palette, skin, Slot::kInputDisabledBorder);
  palette.accent = SlotColor(skin, Slot::kInputFocusBorder);
}

void FillProgressPalette(ControlPalette& palette, const SkinManager& skin) {
  FillInputPalette(palette, skin);
  palette.accentText = ReadableColor(skin, Slot::kSelectionText, Slot::kInputFace, palette.accent);
  palette.accent = ReadableGround(skin, Slot::kInputFocusBorder, palette.accentText);
}

void FillLinkPalette(ControlPalette& palette, const SkinManager& skin) {
  FillCommonPalette(palette, skin);
  const COLORREF face = palette.background;
  const COLORREF text = palette.text;
  palette.text = ReadableColor(skin, Slot::kLinkText, Slot::kDialogText, face);
  palette.pressedText = ReadableColor(skin, Slot::kLinkPressed, Slot::kDialogText, face);
  palette.hoverFace = ReadableTint(skin, Slot::kLinkHover, text, face, kReadable);
  palette.disabledText =
      ReadableTint(skin, Slot::kLinkDisabled, palette.disabledText, face, kFaintlyReadable);
}

}  // namespace Wexa
