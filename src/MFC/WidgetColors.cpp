#include "MFC/WidgetColors.h"

#include "SkinManager.h"
#include "platform/Theme.h"

namespace Wexa {

COLORREF SlotColor(const SkinManager& skin, int slot) {
  return static_cast<COLORREF>(static_cast<unsigned long>(skin.Slot(slot)));
}

COLORREF DialogBackground(const SkinManager& skin) {
  return SlotColor(skin, Slot::kDialogFace);
}

COLORREF SwapRedAndBlue(int color) {
  auto word = static_cast<COLORREF>(color);
  return RGB(GetBValue(word), GetGValue(word), GetRValue(word));
}

void FillCommonPalette(ControlPalette& palette, const SkinManager& skin) {
  palette.background = DialogBackground(skin);
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
  palette.accentText = SlotColor(skin, Slot::kSelectionText);
  palette.selection = SlotColor(skin, Slot::kSelection);
  palette.selectionText = SlotColor(skin, Slot::kSelectionText);
  palette.placeholder = SlotColor(skin, Slot::kPlaceholder);
}

void FillButtonPalette(ControlPalette& palette, const SkinManager& skin) {
  FillCommonPalette(palette, skin);
  palette.face = SlotColor(skin, Slot::kButtonFace);
  palette.hoverFace = palette.face;
  palette.pressedFace = SlotColor(skin, Slot::kButtonPressedFace);
  palette.disabledFace = SlotColor(skin, Slot::kButtonDisabledFace);
  palette.text = SlotColor(skin, Slot::kButtonText);
  palette.pressedText = SlotColor(skin, Slot::kButtonPressedText);
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
  palette.text = SlotColor(skin, Slot::kCheckText);
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
  palette.disabledText = SlotColor(skin, Slot::kInputDisabledText);
  palette.border = SlotColor(skin, Slot::kInputBorder);
  palette.hoverBorder = SlotColor(skin, Slot::kInputHoverBorder);
  palette.disabledBorder = SlotColor(skin, Slot::kInputDisabledBorder);
  palette.accent = SlotColor(skin, Slot::kInputFocusBorder);
}

}  // namespace Wexa
