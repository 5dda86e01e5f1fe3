// The native initialisation of dialogs: template, controls, first layout, default button.

#include <algorithm>
#include <cstring>
#include <string>
#include <unordered_map>

#include "Button.h"
#include "ButtonBox.h"
#include "Label.h"
#include "MFC/ButtonImplMFC.h"
#include "MFC/DialogImplMFC.h"
#include "MFC/EventDispatch.h"
#include "MFC/dialog/BaseDialogMFC.h"
#include "Utf16.h"
#include "WexaConfig.h"
#include "WexaException.h"
#include "layout/ChildArranger.h"
#include "layout/Layout.h"
#include "platform/ControlConstants.h"

namespace Wexa {

namespace {

constexpr DWORD kNoCentering = 0x4;
constexpr DWORD kExtendedBits =
    WS_EX_CONTEXTHELP | WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_DLGMODALFRAME;
constexpr std::size_t kFixedTemplateBytes = 53;
constexpr std::size_t kTypefaceUnits = 12;
constexpr std::uint16_t kTemplatePointSize = 11;

}  // namespace

// -- Template

DLGTEMPLATE& Dialog::impl::Template() {
  return *reinterpret_cast<DLGTEMPLATE*>(dialogTemplate_.data());
}

// A template without controls: header, no menu, no class, title, point size, typeface.
void Dialog::impl::BuildTemplate() {
  std::u16string text = ToUtf16(title);
  std::u16string face = ToUtf16(GetFontInfo()->faceName).substr(0, kTypefaceUnits - 1);
  std::size_t bytes = (2 * text.size() + kFixedTemplateBytes) & ~std::size_t{3};
  dialogTemplate_.assign(bytes / 4 + 1, 0);

  DLGTEMPLATE& header = Template();
  header.style = Creation().style & ~kExtendedBits;
  header.dwExtendedStyle = Creation().style & kExtendedBits;
  if (GetLayoutRTL()) header.dwExtendedStyle |= WS_EX_LAYOUTRTL;

  auto* units = reinterpret_cast<char16_t*>(&header + 1) + 2;  // after menu and class
  std::copy(text.begin(), text.end(), units);
  units += text.size() + 1;
  *units++ = kTemplatePointSize;
  std::copy(face.begin(), face.end(), units);
}

// -- Initialisation

bool Dialog::impl::OnInitDialog() {
  const auto held = Owner()->GetBaseImpl();  // a handler may destroy the dialog in any step
  for (const auto step :
       {&impl::SettleStyle, &impl::SizeToClient, &impl::CreateElements, &impl::AttachSelf,
        &impl::ApplyTabOrder, &impl::ArrangeFirstTime, &impl::Centre, &impl::ShowFirstTime}) {
    (this->*step)();
    if (!GetHandle() || !Owner()) return false;
  }
  auto& dialog = *static_cast<Dialog*>(Owner());
  dialog.initialized_ = true;
  wasInitialized_ = true;
  HWND window = GetHandle();
  if (!dialog.InitializeControls() && IsWindow(window)) Done(Rejected);
  return IsWindow(window) && !FocusedElement();
}

void Dialog::impl::AttachSelf() {
  Owner()->SetTopLevelDlg(window_.get());
  AttachWindowProcedure(*Owner(), GetHandle());
}

void Dialog::impl::Centre() {
  if ((Creation().style & kNoCentering) == 0) window_->CenterWindow();
}

void Dialog::impl::ShowFirstTime() {
  Update();
  ChooseDefaultButton();
  SettleFrame();
  if (GetHandle()) sizeAsArranged_ = GetClientRect().GetSize();
  RefreshSkinColors();
}

void Dialog::impl::SettleStyle() {
  DWORD style = window_->GetStyle();
  if ((style & WS_CAPTION) != WS_CAPTION)
    style = (style & ~WS_DLGFRAME) | WS_BORDER;
  else if ((style & WS_DLGFRAME) && !(style & WS_BORDER))
    style &= ~WS_BORDER;
  window_->ModifyStyle(window_->GetStyle() & ~style, style);
}

void Dialog::impl::SizeToClient() {
  Size frame = FrameSize();
  window_->SetWindowPos(nullptr, 0, 0, clientSize.Width() + frame.Width(),
                        clientSize.Height() + frame.Height(),
                        SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
}

// Containers move what they have already: a handler may destroy the dialog with its elements.
void Dialog::impl::CreateElements() {
  for (std::size_t i = 0; i < elements_.size(); ++i) CreateElement(elements_[i].widget);
}

void Dialog::impl::CreateElement(std::shared_ptr<BaseGUIObject> widget) {
  const auto parent = static_cast<BaseGUIObject*>(widget->GetParent())->GetBaseImpl();
  auto& holder = static_cast<BaseImplMFC&>(*parent);
  const HWND window = holder.HolderOf(*widget);
  widget->SetTopLevelDlg(window_.get());
  widget->SetParentWindow(window);
  const bool created = widget->Create(window);
  if (!GetHandle()) return;
  if (!created)
    throw WexaException("src/MFC/DialogImplMFC", __LINE__,
                        "Cannot create dialog from dialog template data.");
  holder.OnChildCreated(*widget);
}

// Siblings are put in the order in which the form's tab stops first reach into them; those that no
// tab stop reaches follow in the order of the form.
void Dialog::impl::ApplyTabOrder() {
  std::unordered_map<BaseGUIObject*, std::size_t> rank;
  for (const std::wstring& name : tabOrder) {
    auto widget = ElementByName(name);
    for (auto* w = widget.get(); w && w != Owner(); w = static_cast<BaseGUIObject*>(w->GetParent()))
      rank.try_emplace(w, rank.size());
  }
  if (rank.empty()) return;
  auto rankOf = [&](const Element& e) {
    auto found = rank.find(e.widget.get());
    return found == rank.end() ? rank.size() : found->second;
  };
  std::vector<const Element*> order;
  for (const Element& element : elements_) order.push_back(&element);
  std::stable_sort(order.begin(), order.end(),
                   [&](const Element* a, const Element* b) { return rankOf(*a) < rankOf(*b); });
  for (const Element* element : order)
    SetWindowPos(element->widget->GetPlatformHandle(), HWND_BOTTOM, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOREDRAW);
}

// Sizes and places from before all windows were there mean nothing. What no layout places, the form
// does; it shares out its place by itself. A handler of a widget that moves may destroy the dialog
// with its elements.
void Dialog::impl::Arrange(Size client) {
  for (Element& element : elements_) {
    BaseImplMFC& widget = *ImplOf(element.widget.get());
    if (ChildArranger* arranger = widget.AsArranger()) arranger->ForgetSizes();
    if (Layout* layout = widget.Links().layout) layout->StartAgain();
  }
  if (Layout* layout = Links().layout) ArrangeLayout(*layout, client);
  for (std::size_t i = 0; i < elements_.size() && GetHandle(); ++i) {
    const auto held = elements_[i].widget->GetBaseImpl();
    auto& widget = static_cast<BaseImplMFC&>(*held);
    if (!widget.Links().layoutItem && widget.IsVisible()) widget.UpdateLayout();
  }
}

// The first pass finds the dialog's limits; the window then takes a size within them in which all
// has its place, even where the form allows less, and tall enough for wrapped texts.
void Dialog::impl::ArrangeLayout(Layout& layout, Size client) {
  layout.RequestUpdate(false);
  layout.Activate();
  if (!GetHandle()) return;
  const Size least = layout.TotalMinimumSize().GetInflated(MinimumSize());
  int width = std::max(client.Width(), least.Width());
  int height = layout.HasHeightForWidth() ? layout.TotalMinimumHeightForWidth(width) : 0;
  ResizeClient(width, std::max({client.Height(), least.Height(), height}));
}

// -- Default button

void Dialog::impl::SetDefaultButton(Button* button) {
  HWND window = button ? button->GetPlatformHandle() : nullptr;
  if (!window) return;
  defaultButtonId_ = GetDlgCtrlID(window);
  window_->SetDefID(static_cast<UINT>(defaultButtonId_));
}

void Dialog::impl::ChooseDefaultButton() {
  Button* first = nullptr;
  Button* standard = nullptr;
  for (Element& element : elements_) {
    BaseGUIObject* widget = element.widget.get();
    if (widget->Type() == GuiType::ButtonBox && !standard)
      standard = static_cast<ButtonBox*>(widget)->GetButton(StandardButton::OK).get();
    if (widget->Type() != GuiType::Button) continue;
    auto* button = static_cast<Button*>(widget);
    if (!first) first = button;
    if (static_cast<Button::impl*>(ImplOf(button))->IsDefault()) return SetDefaultButton(button);
  }
  SetDefaultButton(standard ? standard : first);
}

void Dialog::impl::SettleFrame() {
  window_->ModifyStyle(resizable ? 0 : WS_THICKFRAME, resizable ? WS_THICKFRAME : 0,
                       SWP_FRAMECHANGED);
}

// -- Keys and cursor

bool Dialog::impl::OnPreTranslate(MSG& message, BOOL& result) {
  if (!Owner()) return false;
  if (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN)
    window_->OnInputWithin(*Owner(), message.hwnd, message.message);
  if (!FollowBuddyMnemonic(message) && !FollowContainerMnemonic(message) &&
      !TurnHoveredArea(message))
    return false;
  result = TRUE;
  return true;
}

// Captions and titles that are drawn, not windows of their own.
bool Dialog::impl::FollowContainerMnemonic(const MSG& message) {
  if (message.message != WM_SYSCHAR || !GetHandle()) return false;
  for (const Element& element : elements_) {
    HWND window = element.widget->GetPlatformHandle();
    if (!IsWindowVisible(window) || !IsWindowEnabled(window)) continue;
    const auto impl = element.widget->GetBaseImpl();  // a handler may destroy the dialog
    if (static_cast<BaseImplMFC&>(*impl).OnMnemonic(static_cast<wchar_t>(message.wParam)))
      return true;
  }
  return false;
}

// The wheel scrolls the area under the pointer, the innermost one, also while the focus is
// elsewhere.
bool Dialog::impl::TurnHoveredArea(const MSG& message) {
  if (message.message != WM_MOUSEWHEEL && message.message != WM_MOUSEHWHEEL) return false;
  const HWND hovered = WindowFromPoint(message.pt);
  HWND area = nullptr;
  for (const Element& element : elements_) {
    const HWND window = element.widget->GetPlatformHandle();
    const bool isArea = element.widget->Type() == GuiType::ScrollArea;
    if (isArea && (window == hovered || IsChild(window, hovered))) area = window;
  }
  if (!area || IsChild(area, message.hwnd)) return false;
  SendMessageW(area, message.message, message.wParam, message.lParam);
  return true;
}

// A label's mnemonic gives the focus to its buddy, wherever that stands in the tab order.
bool Dialog::impl::FollowBuddyMnemonic(const MSG& message) {
  if (message.message != WM_SYSCHAR || !GetHandle()) return false;
  for (const Element& element : elements_) {
    if (element.widget->Type() != GuiType::Label) continue;
    auto& label = static_cast<Label&>(*element.widget);
    if (!label.GetBuddy() || !label.GetPlatformHandle()) continue;
    if (!IsWindowVisible(label.GetPlatformHandle())) continue;
    if (!IsMnemonic(label.GetText(), static_cast<wchar_t>(message.wParam))) continue;
    HWND buddy = label.GetBuddy()->GetPlatformHandle();
    if (!IsWindowEnabled(buddy) || GetFocus() == buddy) continue;
    window_->GotoDlgCtrl(buddy);
    return true;
  }
  return false;
}

bool Dialog::impl::OnSetCursor() {
  if (cursorType == WexaUtils::CursorTypes{}) return false;
  if (cursorType == WexaUtils::Custom && customCursor.Show()) return true;
  SetCursor(WexaUtils::GetPlattformCursorType(cursorType));
  return true;
}

}  // namespace Wexa
