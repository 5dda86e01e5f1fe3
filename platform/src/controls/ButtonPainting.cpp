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

void ButtonControl::Paint(Painter& painter, const CRect& client) const {
  switch (ButtonGeometry::LookOf(Style())) {
    case Look::Push: return PaintPush(painter, client);
    case Look::Check:
    case Look::Radio: return PaintMarked(painter, client);
    case Look::Group: return PaintGroup(painter, client);
  }
}

ControlState ButtonControl::ButtonState() const {
  ControlState state = State();
  state.pressed = pushed_;
  state.isDefault = Type() == BS_DEFPUSHBUTTON;
  state.check = check_;
  return state;
}

void ButtonControl::PaintPush(Painter& painter, const CRect& client) const {
  ControlState state = ButtonState();
  state.pressed = state.pressed || check_ != BST_UNCHECKED;
  const ControlPalette palette = Palette();
  painter.FillRect(client, palette.background);
  Theme::DrawPushButton(painter, client, state, palette, 0);
  const COLORREF color =
      state.enabled && state.pressed ? palette.pressedText : TextColor(state, palette);
  painter.Text(Text(), ButtonGeometry::PushTextRect(client),
               DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | PrefixFormat(), Font(),
               color);
}

void ButtonControl::PaintMarked(Painter& painter, const CRect& client) const {
  const ControlState state = ButtonState();
  const ControlPalette palette = Palette();
  const CRect mark = ButtonGeometry::MarkRect(client);
  painter.FillRect(client, palette.background);
  if (ButtonGeometry::LookOf(Style()) == Look::Check) {
    Theme::DrawCheckBox(painter, mark, state, palette, 0);
  } else {
    Theme::DrawRadioButton(painter, mark, state, palette);
  }
  const std::wstring text = Text();
  const CRect area = ButtonGeometry::MarkTextRect(client);
  painter.Text(text, area, DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | PrefixFormat(), Font(),
               TextColor(state, palette));
  if (state.focusCue && !text.empty()) {
    painter.FocusRect(TextBounds(area, text, Font()).Shrunk(-ScaleUnits(1), 0), palette.text);
  }
}

void ButtonControl::PaintGroup(Painter& painter, const CRect& client) const {
  const ControlPalette palette = Palette();
  painter.FillRect(client, palette.background);
  Theme::DrawGroupBox(painter, client, Text(), Font(), State(), palette);
}
