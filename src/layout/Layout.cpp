#include "layout/Layout.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "BaseGUIObject.h"
#include "MFC/BaseImpl.h"
#include "layout/Axis.h"
#include "layout/CellAlignment.h"
#include "layout/Rescaling.h"
#include "layout/SizeLimits.h"
#include "layout/WidgetItem.h"
#include "layout/WidgetTree.h"

namespace Wexa {

std::optional<SizeConstraint> SizeConstraintFromText(std::wstring_view text) {
  static constexpr std::array<std::pair<std::wstring_view, SizeConstraint>, 6> kTexts{{
      {L"QLayout::SetNoConstraint", SizeConstraint::NoConstraint},
      {L"QLayout::SetMinimumSize", SizeConstraint::Minimum},
      {L"QLayout::SetFixedSize", SizeConstraint::Fixed},
      {L"QLayout::SetMaximumSize", SizeConstraint::Maximum},
      {L"QLayout::SetMinAndMaxSize", SizeConstraint::MinAndMax},
      {L"QLayout::SetDefaultConstraint", SizeConstraint::Default},
  }};
  for (const auto& [name, constraint] : kTexts) {
    if (text.find(name) != std::wstring_view::npos) return constraint;
  }
  return std::nullopt;
}

Rect WithoutMargins(const Rect& rect, const Margins& margins) {
  return RectFromEdges(
      SaturatedSum(rect.Left(), margins.left), SaturatedSum(rect.Top(), margins.top),
      SaturatedSum(rect.Right(), -margins.right), SaturatedSum(rect.Bottom(), -margins.bottom));
}

Size WithMargins(const Size& size, const Margins& margins) {
  return SaturatedSum(
      size, {SaturatedSum(margins.left, margins.right), SaturatedSum(margins.top, margins.bottom)});
}

// -- Belonging ------------------------------------------------------------------------------------

Layout::Layout(WexaObject* parent) : WexaObject(parent) {
  if (auto* layout = dynamic_cast<Layout*>(parent)) {
    layout->AddItem(this);
  } else if (auto* widget = dynamic_cast<BaseGUIObject*>(parent)) {
    AttachTo(*widget);
  }
}

Layout::~Layout() {
  for (Watch* watch = watch_; watch; watch = watch->outer_) watch->layout_ = nullptr;
  if (!isTopLevel_) {
    LeaveParent();
  } else if (parentWidget_ && parentWidget_.Impl()->Links().layout == this) {
    parentWidget_.Impl()->Links().layout = nullptr;
  }
}

void Layout::AttachTo(BaseGUIObject& widget) {
  parentWidget_ = WidgetLink(&widget);
  if (!parentWidget_ || parentWidget_.Impl()->Links().layout) return;
  parentWidget_.Impl()->Links().layout = this;
  isTopLevel_ = true;
  RequestUpdate(false);
}

void Layout::LeaveParent() {
  for (int i = 0; parentLayout_ && i < parentLayout_->Count(); ++i) {
    if (parentLayout_->ItemAt(i) == this) parentLayout_->TakeAt(i);
  }
}

void Layout::Adopt(LayoutItem& item) {
  Layout* nested = item.AsLayout();
  if (!nested || nested->isTopLevel_) return;
  nested->parentLayout_ = this;
  nested->SetParent(this);
}

void Layout::LetGo(LayoutItem& item) {
  if (Layout* nested = item.AsLayout(); nested && nested->parentLayout_ == this) {
    nested->parentLayout_ = nullptr;
    nested->SetParent(nullptr);
  }
  if (auto* widgetItem = dynamic_cast<WidgetItemV2*>(&item)) widgetItem->SetOwner(nullptr);
}

void Layout::PlaceItem(LayoutItem& item, const Rect& cell) {
  if (!item.AsLayout() || item.Alignment() == 0) return item.SetGeometry(cell);
  const Size size = SizeInCell(item, cell.GetSize(), item.SizeHint());
  item.SetGeometry(AlignedInCell(cell, size, item.Alignment()));
}

BaseGUIObject* Layout::ParentWidget() const {
  const Layout* layout = this;
  while (!layout->isTopLevel_ && layout->parentLayout_) layout = layout->parentLayout_;
  return layout->isTopLevel_ ? layout->parentWidget_.Widget() : nullptr;
}

void Layout::SetMenuBar(BaseGUIObject* menuBar) {
  menuBar_ = WidgetLink(menuBar);
}

// -- Items ----------------------------------------------------------------------------------------

LayoutItem* Layout::ReplaceWidget(BaseGUIObject* from, BaseGUIObject* to, bool recursive) {
  if (!from || !to || from == to) return nullptr;
  for (int i = 0; i < Count(); ++i) {
    if (LayoutItem* old = ReplaceIn(i, from, to, recursive)) return old;
  }
  return nullptr;
}

LayoutItem* Layout::ReplaceIn(int index, BaseGUIObject* from, BaseGUIObject* to, bool recursive) {
  LayoutItem* item = ItemAt(index);
  if (item->Widget() == from) {
    auto replacement = std::make_unique<WidgetItem>(to);
    LayoutItem* old = ReplaceAt(index, replacement.get());
    if (old) replacement.release();
    return old;
  }
  if (!recursive) return nullptr;
  Layout* inner = item->AsLayout() ? item->AsLayout() : LayoutOf(item->Widget());
  return inner ? inner->ReplaceWidget(from, to, recursive) : nullptr;
}

Size Layout::MaximumSize() {
  return {LayoutSizeLimit(), LayoutSizeLimit()};
}

bool Layout::IsEmpty() {
  for (int i = 0; LayoutItem* item = ItemAt(i); ++i) {
    if (!item->IsEmpty()) return false;
  }
  return true;
}

void Layout::Invalidate(bool update) {
  geometry_ = Rect();
  if (update) RequestUpdate(false);
}

// -- Margins and spacing --------------------------------------------------------------------------

void Layout::Rescale(const Rescaling& rescale) {
  for (int* side : {&margins_.left, &margins_.top, &margins_.right, &margins_.bottom})
    *side = rescale.Length(*side);
  insideSpacing_ = rescale.Length(insideSpacing_);
  for (int i = 0; LayoutItem* item = ItemAt(i); ++i) item->Rescale(rescale);
}

void Layout::SetContentsMargins(int left, int top, int right, int bottom) {
  const Margins margins{left, top, right, bottom};
  if (margins_ == margins) return;
  margins_ = margins;
  Invalidate(true);
}

void Layout::GetContentsMargins(int* left, int* top, int* right, int* bottom) const {
  const Margins margins = ResolvedMargins();
  if (left) *left = margins.left;
  if (top) *top = margins.top;
  if (right) *right = margins.right;
  if (bottom) *bottom = margins.bottom;
}

Margins Layout::ResolvedMargins() const {
  const int standard = DefaultMargin();
  auto resolve = [standard](int side) { return side >= 0 ? side : standard; };
  return {resolve(margins_.left), resolve(margins_.top), resolve(margins_.right),
          resolve(margins_.bottom)};
}

int Layout::DefaultMargin() const {
  constexpr int kDialogMargin = 11;
  constexpr int kWidgetMargin = 9;
  BaseGUIObject* widget = isTopLevel_ ? parentWidget_.Widget() : nullptr;
  if (!widget) return 0;
  return ScaledUnits(widget->Type() == BaseGUIObject::GuiType::Dialog ? kDialogMargin
                                                                      : kWidgetMargin);
}

void Layout::SetSpacing(int spacing) {
  insideSpacing_ = spacing;
  Invalidate(true);
}

int Layout::Spacing() {
  return insideSpacing_ >= 0 ? insideSpacing_ : DefaultSpacing();
}

int Layout::DefaultSpacing() const {
  constexpr int kSpacing = 6;
  if (parentLayout_) return parentLayout_->Spacing();
  return parentWidget_ ? ScaledUnits(kSpacing) : -1;
}

void Layout::SetSizeConstraint(SizeConstraint constraint) {
  if (constraint_ == constraint) return;
  constraint_ = constraint;
  Invalidate(true);
}

}  // namespace Wexa
