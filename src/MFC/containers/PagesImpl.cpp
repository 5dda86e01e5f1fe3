#include "MFC/containers/PagesImpl.h"

#include <algorithm>

#include "ChildDialog.h"
#include "platform/DialogManager.h"

namespace Wexa {

void PagesImpl::AddPage(ChildDialog* page) {
  pages_.push_back(page);
  Children().push_back(page);
}

ChildDialog* PagesImpl::Page(int index) const {
  bool valid = index >= 0 && index < PageCount();
  return valid ? pages_[static_cast<std::size_t>(index)] : nullptr;
}

Size PagesImpl::AroundPages(Size (BaseGUIObject::*size)(), const Size& own) {
  Size largest;
  for (ChildDialog* page : pages_) largest = largest.GetInflated((page->*size)());
  RECT margins = PageMargins();
  largest.SetWidth(largest.Width() + margins.left + margins.right);
  largest.SetHeight(largest.Height() + margins.top + margins.bottom);
  return largest.GetInflated(own);
}

Size PagesImpl::IdealSize() {
  return AroundPages(&BaseGUIObject::IdealSize, OwnSize());
}
Size PagesImpl::MinimumIdealSize() {
  return AroundPages(&BaseGUIObject::MinimumIdealSize, OwnMinimumSize());
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
  page.Show(&page == Page(CurrentIndex()), false);
}

}  // namespace Wexa
