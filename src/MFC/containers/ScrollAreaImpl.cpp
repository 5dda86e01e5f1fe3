#include "MFC/containers/ScrollAreaImpl.h"

#include <algorithm>

#include "MFC/base/WidgetColors.h"
#include "form/FormReader.h"
#include "layout/Layout.h"
#include "platform/DialogManager.h"
#include "platform/Painter.h"
#include "platform/VirtualKeys.h"

namespace Wexa {

namespace {

constexpr int kBorder = 1;
constexpr int kLargestWidth = 480;
constexpr int kLargestHeight = 320;
constexpr int kSmallestSide = 72;
constexpr int kLineStep = 20;

// How far the children of a widget without a layout reach.
Size ReachOf(BaseGUIObject& widget) {
  Size reach;
  for (BaseGUIObject* child : ImplOf(&widget)->Children()) {
    Rect place = ImplOf(child)->LayoutGeometry();
    if (place.Width() == 0) place = Rect(ImplOf(child)->Creation().rect);
    reach = reach.GetInflated({place.Right(), place.Bottom()});
  }
  return reach;
}

// Keys that an edit with a selection leaves alone: it uses the arrows only.
bool IsPageKey(WPARAM key) {
  return key == VK_PRIOR || key == VK_NEXT;
}

bool IsArrowKey(WPARAM key) {
  return key >= VK_LEFT && key <= VK_DOWN;
}

BarPolicy BarPolicyOf(const FormReader& form, const wchar_t* property) {
  if (form.Has(property, L"Qt::ScrollBarAlwaysOff")) return BarPolicy::AlwaysOff;
  return form.Has(property, L"Qt::ScrollBarAlwaysOn") ? BarPolicy::AlwaysOn : BarPolicy::AsNeeded;
}

}  // namespace

ScrollArea::impl::impl(ScrollArea* owner) : ArrangingImpl(owner) {
  horizontal_->vertical = false;
  vertical_->vertical = true;
  for (auto& bar : {vertical_, horizontal_}) {
    bar->fillPalette = [this](ControlPalette& palette) {
      FillScrollPalette(palette, GetSkinManager());
    };
    bar->onChanged = [this](int) {
      if (!Owner()) return;
      const auto held = Owner()->GetBaseImpl();  // moving the content may run a host's code
      PlaceContent();
    };
  }
}

bool ScrollArea::impl::CreateNative(CWnd* parent) {
  if (!ArrangingImpl::CreateNative(parent)) return false;
  view_.Create(CRect(), GetCWnd());
  for (auto& bar : {vertical_, horizontal_}) bar->Create(L"", WS_CHILD, CRect(), GetCWnd());
  for (HWND window : {view_.m_hWnd, vertical_->m_hWnd, horizontal_->m_hWnd})
    SetWindowPos(window, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  return true;
}

HWND ScrollArea::impl::HolderOf(const BaseGUIObject& child) {
  return &child == content_ ? view_.GetSafeHwnd() : GetHandle();
}

void ScrollArea::impl::ReadForm(const FormReader& form) {
  policies_ = {BarPolicyOf(form, L"verticalScrollBarPolicy"),
               BarPolicyOf(form, L"horizontalScrollBarPolicy")};
  isFramed_ = !form.Has(PropertyId::FrameShape, L"QFrame::NoFrame");
  if (form.Find(L"widgetResizable"))
    fit_ = form.Flag(L"widgetResizable", false) ? ContentFit::Resize : ContentFit::Preferred;
}

void ScrollArea::impl::SetContent(BaseGUIObject* content) {
  content_ = content;
  if (content) AddChild(*content);
  if (content && view_.GetSafeHwnd() && content->GetPlatformHandle())
    ::SetParent(content->GetPlatformHandle(), view_.GetSafeHwnd());
  UpdateLayout();
  InvalidateLayout();
}

void ScrollArea::impl::ForgetChild(BaseGUIObject& child) {
  ArrangingImpl::ForgetChild(child);
  if (&child == content_) content_ = nullptr;
}

// -- Sizes --------------------------------------------------------------------

int ScrollArea::impl::Border() const {
  return isFramed_ ? std::max(1, Scale(kBorder)) : 0;
}

// As large as the content with the bars that it needs at the largest size.
Size ScrollArea::impl::IdealSize() {
  const Size most = Scale(kLargestWidth, kLargestHeight);
  const int frame = 2 * Border();
  const ScrollView view = ViewOf({most.Width() - frame, most.Height() - frame}, true);
  const int bar = Theme::ScrollBarWidth();
  const Size whole(view.wanted.Width() + frame + (view.hasVertical ? bar : 0),
                   view.wanted.Height() + frame + (view.hasHorizontal ? bar : 0));
  return whole.GetDeflated(most).GetInflated(MinimumIdealSize());
}

Size ScrollArea::impl::MinimumIdealSize() {
  return Scale(kSmallestSide, kSmallestSide);
}

// What the content would like to have in a view of this width. Where no bar would show it, what is
// outside cannot be reached: the content then makes do with its minimum.
Size ScrollArea::impl::PreferredSize(int width) {
  BaseImplMFC& impl = *ImplOf(content_);
  const WidgetSizes& sizes = SizesOf(*content_);
  const Size least = sizes.SmartMinimum();
  Size size = sizes.SmartHint();
  if (policies_.horizontal == BarPolicy::AlwaysOff) size.SetWidth(least.Width());
  if (policies_.vertical == BarPolicy::AlwaysOff) size.SetHeight(least.Height());
  if (!impl.Links().layout) size = size.GetInflated(ReachOf(*content_));
  if (impl.HasHeightForWidth()) size.SetHeight(impl.HeightForWidth(std::max(width, size.Width())));
  return size;
}

// What the content cannot do without in a view of this width.
Size ScrollArea::impl::LeastSize(int width) {
  BaseImplMFC& impl = *ImplOf(content_);
  Size size = SizesOf(*content_).SmartMinimum();
  Layout* layout = impl.Links().layout;
  if (!layout) size = size.GetInflated(ReachOf(*content_));
  const int across = std::max(width, size.Width());
  if (layout && layout->HasHeightForWidth())
    size.SetHeight(layout->TotalMinimumHeightForWidth(across));
  else if (impl.HasHeightForWidth())
    size.SetHeight(impl.HeightForWidth(across));
  return size;
}

ScrollView ScrollArea::impl::ViewOf(Size view, bool preferred) {
  const auto wantedAt = [&](int width) {
    if (!content_) return Size();
    return preferred ? PreferredSize(width) : LeastSize(width);
  };
  return ScrollView::Of(view, wantedAt, Theme::ScrollBarWidth(), policies_);
}

CRect ScrollArea::impl::InnerRect() {
  return GetCWnd()->GetClientRect().Shrunk(Border(), Border());
}

// -- Arrangement --------------------------------------------------------------

void ScrollArea::impl::UpdateLayout() {
  if (!view_.GetSafeHwnd() || isArranging_) return;
  CRect inner = InnerRect();
  const ScrollView view = ViewOf({inner.Width(), inner.Height()}, fit_ != ContentFit::Resize);
  contentSize_ = fit_ == ContentFit::Preferred ? view.wanted : view.Content();
  view_.MoveWindow(
      CRect(inner.left, inner.top, inner.left + view.room.Width(), inner.top + view.room.Height()));
  PlaceBars(inner, view);
  isArranging_ = true;
  SetRanges(view);
  isArranging_ = false;
  PlaceContent();
}

// A bar takes the focus when nothing in the content does.
void ScrollArea::impl::PlaceBars(const CRect& inner, const ScrollView& view) {
  int x = inner.left + view.room.Width();
  int y = inner.top + view.room.Height();
  vertical_->MoveWindow(CRect(x, inner.top, inner.right, y));
  horizontal_->MoveWindow(CRect(inner.left, y, x, inner.bottom));
  DWORD stop = GetNextDlgTabItem(view_.GetSafeHwnd(), nullptr, FALSE) ? 0 : WS_TABSTOP;
  for (auto& bar : {vertical_, horizontal_}) bar->ModifyStyle(WS_TABSTOP, stop);
  vertical_->ShowWindow(view.hasVertical ? SW_SHOW : SW_HIDE);
  horizontal_->ShowWindow(view.hasHorizontal ? SW_SHOW : SW_HIDE);
}

void ScrollArea::impl::SetRanges(const ScrollView& view) {
  vertical_->SetSteps(Scale(kLineStep), view.room.Height());
  vertical_->SetRange(0, contentSize_.Height() - view.room.Height());
  horizontal_->SetSteps(Scale(kLineStep), view.room.Width());
  horizontal_->SetRange(0, contentSize_.Width() - view.room.Width());
}

void ScrollArea::impl::PlaceContent() {
  if (isArranging_ || !content_ || !content_->GetPlatformHandle()) return;
  content_->MoveWindow(-horizontal_->Range().Value(), -vertical_->Range().Value(),
                       contentSize_.Width(), contentSize_.Height(), true);
}

void ScrollArea::impl::OnFocusWithin(HWND window) {
  if (!IsChild(view_.GetSafeHwnd(), window) || !content_) return;
  RECT rect{};
  ::GetClientRect(window, &rect);
  POINT corners[2] = {{rect.left, rect.top}, {rect.right, rect.bottom}};
  MapWindowPoints(window, content_->GetPlatformHandle(), corners, 2);
  CRect room = view_.GetClientRect();
  const auto& [start, end] = corners;
  horizontal_->SetValue(PositionToShow(start.x, end.x, horizontal_->Range().Value(), room.Width()));
  vertical_->SetValue(PositionToShow(start.y, end.y, vertical_->Range().Value(), room.Height()));
}

// -- Looks --------------------------------------------------------------------

void ScrollArea::impl::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  ArrangingImpl::Paint(painter, client, palette);
  if (isFramed_) painter.FrameRect(client, palette.border, Border());
}

// -- Input --------------------------------------------------------------------

bool ScrollArea::impl::OnMessage(UINT message, WPARAM wParam, LPARAM, LRESULT& result) {
  if (message != WM_MOUSEWHEEL && message != WM_MOUSEHWHEEL) return false;
  bool horizontal = message == WM_MOUSEHWHEEL || GetKeyState(VK_SHIFT) < 0;
  result = 0;
  int delta = static_cast<short>(HIWORD(wParam));
  return ScrollByWheel(message == WM_MOUSEHWHEEL ? -delta : delta, horizontal);
}

// A bar that has nowhere to go leaves the wheel to what holds the area.
bool ScrollArea::impl::ScrollByWheel(int delta, bool horizontal) {
  const auto bar = horizontal ? horizontal_ : vertical_;
  if (bar->Range().Span() == 0) return false;
  bar->MoveByWheel(delta);
  return true;
}

bool ScrollArea::impl::TakesKey(const MSG& message) const {
  LRESULT code =
      SendMessageW(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
  if (code & DLGC_WANTALLKEYS) return false;
  bool usesArrows = (code & DLGC_WANTARROWS) != 0;
  bool isEdit = (code & DLGC_HASSETSEL) != 0;
  if (IsPageKey(message.wParam)) return !usesArrows || isEdit;
  return IsArrowKey(message.wParam) && !usesArrows &&
         GetNextDlgGroupItem(message.hwnd, message.hwnd, FALSE) == message.hwnd;
}

bool ScrollArea::impl::OnPreTranslate(const MSG& message) {
  if (message.message != WM_KEYDOWN || GetKeyState(VK_CONTROL) < 0 || !TakesKey(message))
    return false;
  bool sideways = message.wParam == VK_LEFT || message.wParam == VK_RIGHT;
  const auto bar = sideways ? horizontal_ : vertical_;
  if (bar->Range().Span() == 0) return false;
  return bar->MoveByKey(static_cast<int>(message.wParam));
}

}  // namespace Wexa
