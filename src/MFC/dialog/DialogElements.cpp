#include "MFC/dialog/DialogElements.h"

#include <algorithm>

#include "BaseGUIObject.h"
#include "MFC/BaseImplMFC.h"
#include "WexaException.h"
#include "layout/ChildArranger.h"
#include "layout/Layout.h"
#include "layout/Rescaling.h"

namespace Wexa {

void DialogElements::Add(const std::wstring& name, std::shared_ptr<BaseGUIObject> widget) {
  byName_.try_emplace(name, elements_.size());
  elements_.push_back({name, std::move(widget)});
}

std::shared_ptr<BaseGUIObject> DialogElements::Find(const std::wstring& name) const {
  const auto found = byName_.find(name);
  return found == byName_.end() ? nullptr : elements_[found->second].widget;
}

// A widget may consist of several windows.
BaseGUIObject* DialogElements::Focused() const {
  for (HWND window = GetFocus(); window; window = ::GetParent(window))
    if (BaseGUIObject* widget = WidgetOf(window)) return widget;
  return nullptr;
}

// An element, or a part of one that is a widget itself.
BaseGUIObject* DialogElements::WidgetOf(HWND window) const {
  for (const Element& element : elements_) {
    if (element.widget->GetPlatformHandle() == window) return element.widget.get();
    for (BaseGUIObject* part : ImplOf(element.widget.get())->Children())
      if (part->GetPlatformHandle() == window) return part;
  }
  return nullptr;
}

// Containers move what they have already: a handler may destroy the dialog with its elements.
void DialogElements::CreateWindows(CWnd& dialog) {
  for (std::size_t i = 0; i < elements_.size(); ++i) MakeWindow(elements_[i].widget, dialog);
}

void DialogElements::MakeWindow(std::shared_ptr<BaseGUIObject> widget, CWnd& dialog) {
  const auto parent = static_cast<BaseGUIObject*>(widget->GetParent())->GetBaseImpl();
  auto& holder = static_cast<BaseImplMFC&>(*parent);
  const HWND window = holder.HolderOf(*widget);
  widget->SetTopLevelDlg(&dialog);
  widget->SetParentWindow(window);
  const bool created = widget->Create(window);
  if (!dialog.GetSafeHwnd()) return;
  if (!created)
    throw WexaException("src/MFC/DialogImplMFC", __LINE__,
                        "Cannot create dialog from dialog template data.");
  holder.OnChildCreated(*widget);
}

// Siblings are put in the order in which the tab stops first reach into them; those that no tab
// stop reaches follow in the order of the form.
void DialogElements::ApplyTabOrder() {
  std::unordered_map<const WexaObject*, std::size_t> rank;
  for (const std::wstring& name : tabOrder_) {
    const auto widget = Find(name);
    for (const WexaObject* w = widget.get(); w; w = w->GetParent())
      rank.try_emplace(w, rank.size());
  }
  if (rank.empty()) return;
  const auto rankOf = [&](const Element* element) {
    const auto found = rank.find(element->widget.get());
    return found == rank.end() ? rank.size() : found->second;
  };
  std::vector<const Element*> order;
  for (const Element& element : elements_) order.push_back(&element);
  std::ranges::stable_sort(order, {}, rankOf);
  for (const Element* element : order)
    SetWindowPos(element->widget->GetPlatformHandle(), HWND_BOTTOM, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOREDRAW);
}

void DialogElements::StartLayoutsAgain() {
  for (const Element& element : elements_) {
    BaseImplMFC& widget = *ImplOf(element.widget.get());
    if (ChildArranger* arranger = widget.AsArranger()) arranger->ForgetSizes();
    if (Layout* layout = widget.Links().layout) layout->StartAgain();
  }
}

void DialogElements::ArrangeFreeOnes(CWnd& dialog) {
  for (std::size_t i = 0; i < elements_.size() && dialog.GetSafeHwnd(); ++i) {
    const auto held = elements_[i].widget->GetBaseImpl();
    auto& widget = static_cast<BaseImplMFC&>(*held);
    if (!widget.Links().layoutItem && widget.IsVisible()) widget.UpdateLayout();
  }
}

void DialogElements::RescaleFreeOnes(CWnd& dialog, const Rescaling& rescale) {
  for (std::size_t i = 0; i < elements_.size() && dialog.GetSafeHwnd(); ++i) {
    const auto held = elements_[i].widget->GetBaseImpl();
    auto& widget = static_cast<BaseImplMFC&>(*held);
    if (widget.Links().layoutItem || !widget.GetHandle()) continue;
    CRect place = widget.GetWindowRect().PlatformRect();
    widget.GetCWnd()->GetParent()->ScreenToClient(&place);
    const Rect scaled = rescale(Rect(place));
    widget.MoveWindow(scaled.Left(), scaled.Top(), scaled.Width(), scaled.Height(), true);
  }
}

void DialogElements::Drop() {
  auto elements = std::exchange(elements_, {});
  byName_.clear();
  for (const Element& element : elements) ImplOf(element.widget.get())->DeleteLayout();
  for (const Element& element : elements) {
    const bool hostHoldsIt = element.widget.use_count() > 1;
    ImplOf(element.widget.get())->LeaveDialog(hostHoldsIt);
  }
  while (!elements.empty()) elements.pop_back();
}

}  // namespace Wexa
