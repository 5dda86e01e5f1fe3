#include "CheckBox.h"

#include "MFC/CheckBoxImplMFC.h"
#include "MFC/base/WidgetColors.h"
#include "WexaConfig.h"
#include "form/FormReader.h"
#include "platform/ControlConstants.h"
#include "platform/Theme.h"

namespace Wexa {

CheckBox::CheckBox() : BaseGUIObject(GuiType::CheckBox), impl_(std::make_shared<impl>(this)) {}
CheckBox::~CheckBox() {
  ReleaseImpl();
}

bool CheckBox::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> CheckBox::GetBaseImpl() const {
  return impl_;
}
Size CheckBox::IdealSize() {
  return impl_->IdealSize();
}

void CheckBox::SetCheck(WexaUtils::CheckBoxStates state) {
  impl_->SetCheck(WexaUtils::ChBStateToMFCChBState(state));
}
WexaUtils::CheckBoxStates CheckBox::GetCheck() {
  return WexaUtils::MFCChBStateToChBState(impl_->GetCheck());
}
void CheckBox::SetTristate(bool tristate) {
  impl_->SetTristate(tristate);
}
void CheckBox::SetTextColor(SkinManagerColor color) {
  impl_->GetSkinManager().Slot(Slot::kCheckText) = color;
  impl_->RefreshSkinColors();
}

void CheckBox::SetText(const std::wstring& text) {
  impl_->SetText(text);
}
std::wstring CheckBox::GetText() {
  return impl_->Text();
}
void CheckBox::SetBorderRadius(int radius) {
  if (radius >= 0) impl_->SetBorderRadius(radius);
}
int CheckBox::GetBorderRadius() const {
  return impl_->GetBorderRadius();
}
void CheckBox::SetWrap(bool) {}
void CheckBox::SetMinimumHeight(unsigned int) {}

// -- Implementation

CheckBox::impl::impl(CheckBox* owner)
    : BaseImplMFC(owner), window_(*this), borderRadius_(GetCheckboxRadius()) {
  Creation().style |= WS_TABSTOP | BS_AUTOCHECKBOX;
}

bool CheckBox::impl::CreateNative(CWnd* parent) {
  if (!window_.Create(Creation().text, Creation().style, ScaledRect(), parent,
                      Creation().controlId))
    return false;
  window_.SetCheck(initialCheck_);
  return true;
}

void CheckBox::impl::ReadForm(const FormReader& form) {
  if (form.Flag(L"tristate", false)) SetTristate(true);
  if (form.Flag(L"checked", false)) SetCheck(BST_CHECKED);
}

Size CheckBox::impl::IdealSize() {
  return CheckSizeFor(Font(), Text());
}

void CheckBox::impl::SetCheck(int state) {
  initialCheck_ = state;
  if (GetHandle()) window_.SetCheck(state);
}

int CheckBox::impl::GetCheck() {
  return GetHandle() ? window_.GetCheck() : initialCheck_;
}

void CheckBox::impl::SetTristate(bool tristate) {
  DWORD type = tristate ? BS_AUTO3STATE : BS_AUTOCHECKBOX;
  Creation().style = (Creation().style & ~BS_TYPEMASK) | type;
  if (GetHandle()) window_.SetButtonStyle(type, true);
}

void CheckBox::impl::FillPalette(ControlPalette& palette) {
  FillCheckPalette(palette, GetSkinManager());
  palette.radius = Scale(borderRadius_);
}

void CheckBox::impl::SetBorderRadius(int radius) {
  borderRadius_ = radius;
  RefreshSkinColors();
}

void CheckBox::impl::KeepState() {
  BaseImplMFC::KeepState();
  initialCheck_ = window_.GetCheck();
}

void CheckBox::impl::OnClicked() {
  if (Owner()) static_cast<CheckBox*>(Owner())->Clicked();
}

}  // namespace Wexa
