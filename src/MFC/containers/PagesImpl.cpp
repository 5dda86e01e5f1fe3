#include "MFC/containers/PagesImpl.h"

#include <algorithm>

#include "ChildDialog.h"
#include "form/FormReader.h"
#include "platform/DialogManager.h"

namespace Wexa {

void PagesImpl::AddPage(ChildDialog* page) {
  if (!page) return;
  pages_.push_back(page);
  AddChild(*page);
  ForgetSizes();
}

// The next page shows in the place of one that is gone, once that is over.
void PagesImpl::ForgetChild(BaseGUIObject& child) {
  ArrangingImpl::ForgetChild(child);
  const auto gone = std::find(pages_.begin(), pages_.end(), &child);
  if (gone == pages_.end()) return;
  const auto index = static_cast<int>(gone - pages_.begin());
  if (index < current_) --current_;
  pages_.erase(gone);
  OnPageGone(index);
}

void PagesImpl::PlaceAsRequested() {
  ArrangingImpl::PlaceAsRequested();
  if (GetHandle()) ShowOnly(CurrentIndex(), false);
}

void PagesImpl::ReadForm(const FormReader& form) {
  current_ = form.Clamped(PropertyId::CurrentIndex, 0);
}

ChildDialog* PagesImpl::Page(int index) const {
  bool valid = index >= 0 && index < PageCount();
  return valid ? pages_[static_cast<std::size_t>(index)] : nullptr;
}

Size PagesImpl::AroundPages(Size (WidgetSizes::*size)() const, const Size& own) {
  Size largest;
  for (ChildDialog* page : pages_) largest = largest.GetInflated((SizesOf(*page).*size)());
  RECT margins = PageMargins();
  largest.SetWidth(largest.Width() + margins.left + margins.right);
  largest.SetHeight(largest.Height() + margins.top + margins.bottom);
  return largest.GetInflated(own);
}

Size PagesImpl::IdealSize() {
  return AroundPages(&WidgetSizes::SmartHint, OwnSize());
}
Size PagesImpl::MinimumIdealSize() {
  return AroundPages(&WidgetSizes::SmartMinimum, OwnMinimumSize());
}

Rect PagesImpl::PageRect() {
  RECT margins = PageMargins();
  Rect rect =
      GetClientRect().MarginsAdded(-margins.left, -margins.top, -margins.right, -margins.bottom);
  rect.SetRight(std::max(rect.Left(), rect.Right()));
  rect.SetBottom(std::max(rect.Top(), rect.Bottom()));
  return rect;
}

void PagesImpl::UpdateLayout() {
  ChildDialog* page = Page(CurrentIndex());
  if (!page || !page->GetPlatformHandle()) return;
  Rect place = PageRect();
  page->MoveWindow(place.Left(), place.Top(), place.Width(), place.Height(), true);
}

bool PagesImpl::SetCurrentIndex(int index, bool updateLayout) {
  if (!Page(index)) return false;
  ChildDialog* before = Page(CurrentIndex());
  current_ = index;
  if (!GetHandle()) return true;
  bool hadFocus = before != Page(index) && IsChild(before->GetPlatformHandle(), GetFocus());
  UpdateLayout();
  if (!ShowOnly(index, updateLayout)) return false;
  if (!hadFocus) return true;
  if (HWND next = FocusAfterChange())
    GetCWnd()->GetTopLevelParent()->SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next),
                                                TRUE);
  return GetHandle() != nullptr;
}

bool PagesImpl::ShowOnly(int index, bool updateLayout) {
  for (int i = 0; i < PageCount(); ++i) {
    if (!GetHandle()) return false;
    if (Page(i)->GetPlatformHandle()) Page(i)->Show(i == index, updateLayout);
  }
  return GetHandle() != nullptr;
}

HWND PagesImpl::FocusAfterChange() {
  HWND inside = GetNextDlgTabItem(Page(CurrentIndex())->GetPlatformHandle(), nullptr, FALSE);
  if (inside) return inside;
  return GetNextDlgTabItem(GetCWnd()->GetTopLevelParent()->GetSafeHwnd(), GetHandle(), FALSE);
}

void PagesImpl::EnablePage(int index, bool enable, bool remember) {
  if (ChildDialog* page = Page(index)) page->Enable(enable, remember);
}

void PagesImpl::OnChildCreated(BaseGUIObject& page) {
  ArrangingImpl::OnChildCreated(page);
  if (GetHandle()) page.Show(&page == Page(CurrentIndex()), false);
}

}  // namespace Wexa
