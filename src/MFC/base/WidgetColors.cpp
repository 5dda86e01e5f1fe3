#include "MFC/base/WidgetColors.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "SkinManager.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

std::array<double, 256> LinearLevels() {
  std::array<double, 256> levels{};
  for (std::size_t i = 0; i < levels.size(); ++i) {
    const double c = static_cast<double>(i) / 255.0;
    levels[i] = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  }
  return levels;
}

double Linear(BYTE channel) {
  static const auto levels = LinearLevels();
  return levels[channel];
}

double Luminance(COLORREF color) {
  return 0.2126 * Linear(GetRValue(color)) + 0.7152 * Linear(GetGValue(color)) +
         0.0722 * Linear(GetBValue(color));
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

}  // namespace

COLORREF SlotColor(const SkinManager& skin, int slot) {
  return static_cast<COLORREF>(static_cast<unsigned long>(skin.Slot(slot)));
}

double Contrast(COLORREF a, COLORREF b) {
  constexpr double kFlare = 0.05;
  const double first = Luminance(a) + kFlare;
  const double second = Luminance(b) + kFlare;
  return std::max(first, second) / std::min(first, second);
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

COLORREF FaintColor(const SkinManager& skin, int slot, COLORREF text, COLORREF face) {
  constexpr int kFaint = 40;
  const COLORREF color = SlotColor(skin, slot);
  const bool fits = color != text && Contrast(color, face) >= kReadable;
  return skin.Slot(slot).IsChanged() || fits ? color : MixColors(text, face, kFaint);
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
  palette.disabledText = SlotColor(skin, Slot::kLabelDisabledText);
  palette.border = SlotColor(skin, Slot::kGroupBorder);
  palette.disabledBorder = palette.border;
  palette.hoverFace = palette.face;
  palette.hoverBorder = palette.border;
  palette.pressedFace = palette.face;
  palette.pressedText = palette.text;
  palette.accent = SlotColor(skin, Slot::kButtonAccent);
  palette.accentText = ReadableColor(skin, Slot::kSelectionText, Slot::kInputFace, palette.accent);
  palette.selection = SlotColor(skin, Slot::kSelection);
  palette.selectionText =
      ReadableColor(skin, Slot::kSelectionText, Slot::kInputFace, palette.selection);
}

void FillButtonPalette(ControlPalette& palette, const SkinManager& skin) {
  FillCommonPalette(palette, skin);
  palette.face = SlotColor(skin, Slot::kButtonFace);
  palette.hoverFace = palette.face;
  palette.disabledFace = SlotColor(skin, Slot::kButtonDisabledFace);
  palette.text = SlotColor(skin, Slot::kButtonText);
  FillPressedButton(palette, skin);
  palette.disabledText = SlotColor(skin, Slot::kButtonDisabledText);
  palette.border = SlotColor(skin, Slot::kButtonBorder);
  palette.hoverBorder = SlotColor(skin, Slot::kButtonHoverBorder);
  palette.disabledBorder = SlotColor(skin, Slot::kButtonDisabledBorder);
}

void FillCheckPalette(ControlPalette& palette, const SkinManager& skin) {
  FillCommonPalette(palette, skin);
  palette.face = SlotColor(skin, Slot::kCheckFace);
  palette.hoverFace = palette.face;
  palette.pressedFace = palette.face;
  palette.disabledFace = palette.face;
  palette.text = ReadableColor(skin, Slot::kCheckText, Slot::kDialogText, palette.background);
  palette.disabledText = SlotColor(skin, Slot::kCheckDisabledText);
  palette.border = SlotColor(skin, Slot::kCheckBorder);
  palette.hoverBorder = SlotColor(skin, Slot::kButtonHoverBorder);
  palette.disabledBorder = SlotColor(skin, Slot::kCheckDisabledBorder);
}

void FillInputPalette(ControlPalette& palette, const SkinManager& skin) {
  FillCommonPalette(palette, skin);
  palette.face = SlotColor(skin, Slot::kInputFace);
  palette.hoverFace = palette.face;
  palette.pressedFace = palette.face;
  palette.disabledFace = palette.background;
  palette.text = SlotColor(skin, Slot::kInputText);
  palette.pressedText = palette.text;
  palette.disabledText =
      FaintColor(skin, Slot::kInputDisabledText, palette.text, palette.disabledFace);
  palette.placeholder = FaintColor(skin, Slot::kPlaceholder, palette.text, palette.face);
  palette.border = SlotColor(skin, Slot::kInputBorder);
  palette.hoverBorder = SlotColor(skin, Slot::kInputHoverBorder);
  palette.disabledBorder = SlotColor(skin, Slot::kInputDisabledBorder);
  palette.accent = SlotColor(skin, Slot::kInputFocusBorder);
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
