#include "RadioButton.h"

#include "MFC/RadioButtonImplMFC.h"
#include "MFC/WidgetColors.h"
#include "platform/ControlConstants.h"

namespace Wexa {

RadioButton::RadioButton()
    : BaseGUIObject(GuiType::RadioButton), impl_(std::make_shared<impl>(this)) {}
RadioButton::~RadioButton() {
  ReleaseImpl();
}

bool RadioButton::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> RadioButton::GetBaseImpl() const {
  return impl_;
}
Size RadioButton::IdealSize() {
  return impl_->IdealSize();
}
void RadioButton::SetCheck() {
  impl_->SetCheck();
}
bool RadioButton::Checked() {
  return impl_->IsChecked();
}
void RadioButton::SetText(const std::wstring& text) {
  impl_->SetText(text);
}
std::wstring RadioButton::GetText() {
  return impl_->Text();
}
void RadioButton::SetGroupInfo(std::shared_ptr<GroupInfo> group) {
  impl_->group = std::move(group);
}
std::shared_ptr<GroupInfo> RadioButton::GetGroupInfo() {
  return impl_->group;
}

// -- Implementation

RadioButton::impl::impl(RadioButton* owner) : BaseImplMFC(owner), window_(*this) {
  Creation().style |= WS_TABSTOP | BS_AUTORADIOBUTTON;
}

bool RadioButton::impl::CreateNative(CWnd* parent) {
  if (!window_.Create(Creation().text, Creation().style, ScaledRect(), parent,
                      Creation().controlId))
    return false;
  if (checkedByForm) window_.SetCheck(BST_CHECKED);
  return true;
}

Size RadioButton::impl::IdealSize() {
  return CheckSizeFor(Font(), Text());
}

void RadioButton::impl::SetCheck() {
  if (!GetHandle() || !group) return;
  CheckRadioButton(window_.GetParent()->GetSafeHwnd(), static_cast<int>(group->firstId),
                   static_cast<int>(group->lastId), window_.GetDlgCtrlID());
}

bool RadioButton::impl::IsChecked() {
  return GetHandle() && window_.GetCheck() == BST_CHECKED;
}

void RadioButton::impl::FillPalette(ControlPalette& palette) {
  FillCheckPalette(palette, GetSkinManager());
  palette.background = BackgroundColor();
}

void RadioButton::impl::RefreshSkinColors() {
  if (GetHandle()) window_.Invalidate();
}

unsigned RadioButton::impl::CheckedIdOfGroup() {
  HWND parent = window_.GetParent()->GetSafeHwnd();
  for (unsigned id = group->lastId; id >= group->firstId && id > 0; --id) {
    HWND button = GetDlgItem(parent, static_cast<int>(id));
    if (button && SendMessageW(button, BM_GETCHECK, 0, 0) == BST_CHECKED) return id;
  }
  return 0;
}

void RadioButton::impl::KeepState() {
  BaseImplMFC::KeepState();
  checkedByForm = IsChecked();
}

// Arrow keys and mnemonics click before they focus: only the focused and checked button reports.
void RadioButton::impl::OnClicked() {
  HWND window = GetHandle();
  if (!Owner() || GetFocus() != window || !IsChecked()) return;
  auto* owner = static_cast<RadioButton*>(Owner());
  owner->Clicked();
  if (!IsWindow(window) || !group) return;
  unsigned checked = CheckedIdOfGroup();
  bool changed = checked != group->checkedId;
  group->checkedId = checked;
  if (changed) owner->GroupChanged();
}

}  // namespace Wexa
