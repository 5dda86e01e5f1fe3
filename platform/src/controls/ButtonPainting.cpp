// How the buttons look.

#include "controls/ButtonControl.h"
#include "controls/ButtonGeometry.h"
#include "platform/ControlConstants.h"
#include "platform/Painter.h"

using ButtonGeometry::Look;

namespace {

COLORREF TextColor(const ControlState& state, const ControlPalette& palette) {
  return state.enabled ? palette.text : palette.disabledText;
}

// The part of a text's rectangle that its first line covers.
CRect TextBounds(const CRect& area, const std::wstring& text, HFONT font) {
  const CSize extent = GetTextExtent(font, text, area.Width(), DT_SINGLELINE);
  const int height = std::min<int>(extent.cy, area.Height());
  const int top = area.top + (area.Height() - height) / 2;
  return {area.left, top, std::min<int>(area.left + extent.cx, area.right), top + height};
}

}  // namespace

void ButtonControl::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  painter.FillRect(client, palette.background);
  switch (ButtonGeometry::LookOf(Style())) {
    case Look::Push: return PaintPush(painter, client, palette);
    case Look::Check:
    case Look::Radio: return PaintMarked(painter, client, palette);
    case Look::Group: return PaintGroup(painter, client, palette);
  }
}

void ButtonControl::AddState(ControlState& state) const {
  state.pressed = pushed_;
  state.isDefault = Type() == BS_DEFPUSHBUTTON;
  state.check = check_;
}

void ButtonControl::PaintPush(Painter& painter, const CRect& client,
                              const ControlPalette& palette) const {
  ControlState state = State();
  state.pressed = state.pressed || check_ != BST_UNCHECKED;
  Theme::DrawPushButton(painter, client, state, palette);
  const COLORREF color =
      state.enabled && state.pressed ? palette.pressedText : TextColor(state, palette);
  painter.Text(
      Text(), ButtonGeometry::PushTextRect(client),
      DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | Theme::PrefixFormat(state), Font(),
      color);
}

void ButtonControl::PaintMarked(Painter& painter, const CRect& client,
                                const ControlPalette& palette) const {
  const ControlState state = State();
  const CRect mark = ButtonGeometry::MarkRect(client);
  if (ButtonGeometry::LookOf(Style()) == Look::Check) {
    Theme::DrawCheckBox(painter, mark, state, palette);
  } else {
    Theme::DrawRadioButton(painter, mark, state, palette);
  }
  const std::wstring text = Text();
  const CRect area = ButtonGeometry::MarkTextRect(client);
  painter.Text(text, area,
               DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | Theme::PrefixFormat(state), Font(),
               TextColor(state, palette));
  if (state.focusCue && !text.empty()) {
    painter.FocusRect(TextBounds(area, text, Font()).Shrunk(-ScaleUnits(1), 0), palette.text);
  }
}

void ButtonControl::PaintGroup(Painter& painter, const CRect& client,
                               const ControlPalette& palette) const {
  Theme::DrawGroupBox(painter, client, Text(), Font(), State(), palette);
}
