#include "ButtonBox.h"

#include <array>

#include "Button.h"
#include "MFC/ButtonBoxImplMFC.h"
#include "MFC/base/ControlIds.h"
#include "TrString.h"
#include "form/FormReader.h"
#include "layout/BoxLayout.h"
#include "layout/SpacerItem.h"
#include "layout/WidgetItem.h"

namespace Wexa {

namespace {

struct StandardText {
  StandardButton button;
  const wchar_t* text;
};

// In the order in which boxes show them.
constexpr std::array<StandardText, 8> kStandardButtons{{
    {StandardButton::Reset, L"Reset"},
    {StandardButton::Yes, L"Yes"},
    {StandardButton::OK, L"OK"},
    {StandardButton::Retry, L"Retry"},
    {StandardButton::Ignore, L"Ignore"},
    {StandardButton::No, L"No"},
    {StandardButton::Abort, L"Abort"},
    {StandardButton::Cancel, L"Cancel"},
}};

constexpr int kSpacing = 6;

std::wstring TranslatedText(const wchar_t* text) {
  return TrString(L"", std::wstring(L"Wexa::BBox") + text, text);
}

}  // namespace

ButtonBox::ButtonBox() : ButtonBox(0) {}
ButtonBox::ButtonBox(unsigned standardButtons)
    : BaseGUIObject(GuiType::ButtonBox), impl_(std::make_shared<impl>(this)) {
  impl_->SetButtons(standardButtons);
}
ButtonBox::~ButtonBox() {
  ReleaseImpl();
}

bool ButtonBox::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> ButtonBox::GetBaseImpl() const {
  return impl_;
}
Size ButtonBox::IdealSize() {
  return impl_->IdealSize();
}
std::shared_ptr<Button> ButtonBox::GetButton(StandardButton button) {
  return impl_->GetButton(button);
}
void ButtonBox::SetOrientation(bool vertical) {
  impl_->SetOrientation(vertical);
}

// -- Implementation

ButtonBox::impl::impl(ButtonBox* owner) : ContainerImpl(owner) {}

// The layout goes before the buttons that it places.
ButtonBox::impl::~impl() {
  DeleteLayout();
}

void ButtonBox::impl::ReadForm(const FormReader& form) {
  SetOrientation(form.IsVertical());
  SetButtons(form.Node().standardButtons.flags);
}

void ButtonBox::impl::SetButtons(unsigned standardButtons) {
  if (GetHandle()) return;
  DeleteLayout();
  Children().clear();
  buttons_.clear();
  for (const StandardText& standard : kStandardButtons)
    if (standardButtons & static_cast<unsigned>(standard.button))
      buttons_[standard.button] = MakeButton(standard.text);
  Arrange();
}

std::shared_ptr<Button> ButtonBox::impl::MakeButton(const wchar_t* text) {
  auto button = std::make_shared<Button>();
  button->SetParent(Owner());
  button->SetSizePolicy(ImplOf(button.get())->DefaultPolicy());
  CreationRecord& record = ImplOf(button.get())->Creation();
  record.text = TranslatedText(text);
  record.controlId = NextControlId();
  Children().push_back(button.get());
  ImplOf(button.get())->ResolveFont();
  return button;
}

// A row stands at the end of the box, a column at its top.
void ButtonBox::impl::Arrange() {
  DeleteLayout();
  BoxLayout* layout =
      isVertical_ ? static_cast<BoxLayout*>(new VBoxLayout(Owner())) : new HBoxLayout(Owner());
  layout->SetContentsMargins(0, 0, 0, 0);
  layout->SetSpacing(Scale(kSpacing));
  auto addSpring = [&](SizePolicy::Policy across, SizePolicy::Policy down) {
    layout->AddItem(new SpacerItem(0, 0, across, down));
  };
  if (!isVertical_) addSpring(SizePolicy::Expanding, SizePolicy::Minimum);
  for (const StandardText& standard : kStandardButtons)
    if (auto button = GetButton(standard.button))
      layout->AddItem(new WidgetItemV2(layout, button.get()));
  if (isVertical_) addSpring(SizePolicy::Minimum, SizePolicy::Expanding);
}

void ButtonBox::impl::SetOrientation(bool vertical) {
  if (vertical == isVertical_) return;
  isVertical_ = vertical;
  Arrange();
  InvalidateLayout();
}

std::shared_ptr<Button> ButtonBox::impl::GetButton(StandardButton button) const {
  auto found = buttons_.find(button);
  return found == buttons_.end() ? nullptr : found->second;
}

bool ButtonBox::impl::CreateNative(CWnd* parent) {
  if (!ContainerImpl::CreateNative(parent)) return false;
  for (const StandardText& standard : kStandardButtons) {
    auto button = GetButton(standard.button);
    if (!button) continue;
    button->GetSkinManager().InitSkinManager(&GetSkinManager(), GetSkinManager().GetSkinMode());
    button->SetTopLevelDlg(Owner()->GetTopLevelDlg());
    if (!button->Create(GetHandle())) return false;
  }
  return true;
}

}  // namespace Wexa
