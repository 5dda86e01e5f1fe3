#include "StackedDialog.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "ChildDialog.h"
#include "MFC/containers/StackedDialogImpl.h"
#include "form/FormReader.h"
#include "form/FormText.h"
#include "platform/Painter.h"

namespace Wexa {

namespace {

constexpr int kBorder = 1;
constexpr std::array<std::wstring_view, 4> kFramed{L"QFrame::Box", L"QFrame::Panel",
                                                   L"QFrame::StyledPanel", L"QFrame::WinPanel"};

}  // namespace

// The frame is drawn, not a part of the window: it belongs to the size the stack asks for.
void StackedDialog::impl::ReadForm(const FormReader& form) {
  PagesImpl::ReadForm(form);
  const std::wstring shape = form.Text(PropertyId::FrameShape);
  isFramed_ =
      std::ranges::any_of(kFramed, [&](std::wstring_view word) { return IsEnumWord(shape, word); });
  Creation().style &= ~WS_BORDER;
}

void StackedDialog::impl::TakeChild(BaseGUIObject& child, const FormReader&) {
  if (auto* page = dynamic_cast<ChildDialog*>(&child)) AddPage(page);
}

int StackedDialog::impl::Border() const {
  return isFramed_ ? std::max(1, Scale(kBorder)) : 0;
}

void StackedDialog::impl::Paint(Painter& painter, const CRect& client,
                                const ControlPalette& palette) {
  PagesImpl::Paint(painter, client, palette);
  if (isFramed_) painter.FrameRect(client, palette.border, Border());
}

void StackedDialog::impl::InvalidateInParent() {
  CWnd* parent = GetHandle() ? GetCWnd()->GetParent() : nullptr;
  if (!parent) return;
  CRect area = GetCWnd()->GetWindowRect();
  parent->ScreenToClient(&area);
  parent->InvalidateRect(&area, true);
}

StackedDialog::StackedDialog()
    : BaseGUIObject(GuiType::StackedDialog), impl_(std::make_shared<impl>(this)) {}
StackedDialog::~StackedDialog() {
  ReleaseImpl();
}

bool StackedDialog::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> StackedDialog::GetBaseImpl() const {
  return impl_;
}

void StackedDialog::AddChildDialog(ChildDialog* page) {
  impl_->AddPage(page);
}
ChildDialog* StackedDialog::GetPage(int index) {
  return impl_->Page(index);
}
int StackedDialog::GetCurrentIndex() {
  return impl_->CurrentIndex();
}

void StackedDialog::SetCurrentIndex(int index) {
  const auto held = impl_;  // a handler may destroy the container
  held->SetCurrentIndex(index, false);
  held->InvalidateInParent();
}

void StackedDialog::EnablePage(int index, bool enable, bool remember) {
  impl_->EnablePage(index, enable, remember);
}

int StackedDialog::InsertChildDialog(int, CWnd*) {
  return 0;
}

}  // namespace Wexa
