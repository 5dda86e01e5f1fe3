#include "MFC/dialog/DialogInput.h"

#include "ButtonBox.h"
#include "MFC/ButtonImplMFC.h"
#include "MFC/dialog/DialogElements.h"

namespace Wexa {

using GuiType = BaseGUIObject::GuiType;

// -- Default button

void DialogInput::SetDefaultButton(Button* button) {
  if (!button) return;
  default_ = WidgetLink(button);
  TellWindow(button);
}

void DialogInput::ApplyDefaultButton() {
  auto* chosen = static_cast<Button*>(default_.Widget());
  TellWindow(chosen && chosen->GetPlatformHandle() ? chosen : ChoiceOfForm());
}

void DialogInput::TellWindow(Button* button) {
  const HWND window = button ? button->GetPlatformHandle() : nullptr;
  if (window && window_.GetSafeHwnd()) window_.SetDefID(static_cast<UINT>(GetDlgCtrlID(window)));
}

Button* DialogInput::ChoiceOfForm() const {
  Button* first = nullptr;
  Button* standard = nullptr;
  for (const auto& element : elements_) {
    BaseGUIObject* widget = element.widget.get();
    if (widget->Type() == GuiType::ButtonBox && !standard)
      standard = static_cast<ButtonBox*>(widget)->GetButton(StandardButton::OK).get();
    if (widget->Type() != GuiType::Button) continue;
    auto* button = static_cast<Button*>(widget);
    if (static_cast<Button::impl*>(ImplOf(button))->IsDefault()) return button;
    if (!first) first = button;
  }
  return standard ? standard : first;
}

// -- Input

bool DialogInput::OnInput(const MSG& message) {
  switch (message.message) {
    case WM_SYSCHAR: return FollowMnemonic(message);
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL: return TurnHoveredArea(message);
    default: return false;
  }
}

bool DialogInput::FollowMnemonic(const MSG& message) {
  for (const auto& element : elements_) {
    const HWND window = element.widget->GetPlatformHandle();
    if (!IsWindowVisible(window) || !IsWindowEnabled(window)) continue;
    const auto impl = element.widget->GetBaseImpl();  // a handler may destroy the dialog
    if (static_cast<BaseImplMFC&>(*impl).OnMnemonic(static_cast<wchar_t>(message.wParam)))
      return true;
  }
  return false;
}

// The innermost area under the pointer, also while the focus is elsewhere.
bool DialogInput::TurnHoveredArea(const MSG& message) {
  const HWND hovered = WindowFromPoint(message.pt);
  HWND area = nullptr;
  for (const auto& element : elements_) {
    if (!ImplOf(element.widget.get())->TurnsUnderPointer()) continue;
    const HWND window = element.widget->GetPlatformHandle();
    if (window == hovered || IsChild(window, hovered)) area = window;
  }
  if (!area || IsChild(area, message.hwnd)) return false;
  SendMessageW(area, message.message, message.wParam, message.lParam);
  return true;
}

}  // namespace Wexa
