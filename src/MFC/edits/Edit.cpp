#include "Edit.h"

#include "MFC/EditImplMFC.h"

namespace Wexa {

Edit::Edit() : BaseGUIObject(GuiType::Edit), impl_(std::make_shared<impl>(this)) {}
Edit::~Edit() {
  ReleaseImpl();
}

bool Edit::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> Edit::GetBaseImpl() const {
  return impl_;
}
Size Edit::IdealSize() {
  return impl_->IdealSize();
}

void Edit::SetTextAlign(TextAlign align) {
  impl_->SetTextAlign(align);
}
void Edit::SetSelectAll() {
  impl_->SetSelectAll();
}
void Edit::SetFocus() {
  if (HWND window = GetPlatformHandle()) ::SetFocus(window);
}
void Edit::SetLimitText(int limit) {
  impl_->SetLimitText(limit);
}
void Edit::SetReadOnly(bool readOnly) {
  impl_->SetReadOnly(readOnly);
}
bool Edit::IsReadOnly() {
  return impl_->IsReadOnly();
}

void Edit::SetText(const std::wstring& text) {
  const auto held = impl_;  // a handler may destroy the edit
  held->SetText(text);
}
std::wstring Edit::GetText() {
  return impl_->Text();
}
void Edit::SetPlaceHolderText(std::wstring text) {
  impl_->SetPlaceHolderText(text);
}
void Edit::SetPasswordMode(PasswordMode mode) {
  impl_->SetPasswordMode(mode);
}
Edit::PasswordMode Edit::GetPasswordMode() {
  return impl_->GetPasswordMode();
}
void Edit::SetFrameMode(bool frame) {
  impl_->SetFrameMode(frame);
}
bool Edit::GetFrameMode() {
  return impl_->GetFrameMode();
}

}  // namespace Wexa
