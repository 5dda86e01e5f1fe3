#include "MFC/containers/SplitterImpl.h"

#include <algorithm>

#include "form/FormReader.h"
#include "platform/Painter.h"
#include "platform/VirtualKeys.h"

namespace Wexa {

namespace {

// The line that shows where a dragged handle will be.
class TrackerWnd : public InteractiveWnd {
 protected:
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    painter.FillRect(client, palette.accent);
  }
};

}  // namespace

// -- Sizes --------------------------------------------------------------------

int Splitter::impl::HandleSize() const {
  return Scale(std::max(handleWidth_, 0));
}

// A handle stands between two visible panes.
int Splitter::impl::HandlesSize() const {
  auto visible =
      std::count_if(panes_.begin(), panes_.end(), [](const Pane& pane) { return pane.IsShown(); });
  return std::max(static_cast<int>(visible) - 1, 0) * HandleSize();
}

Size Splitter::impl::Around(Size (WidgetSizes::*sizeOf)() const) {
  int along = HandlesSize();
  int across = 0;
  for (const Pane& pane : panes_) {
    if (!pane.IsShown()) continue;
    Size size = (SizesOf(*pane.view).*sizeOf)();
    along += Along(size);
    across = std::max(across, Across(size));
  }
  return isVertical_ ? Size(across, along) : Size(along, across);
}

Size Splitter::impl::IdealSize() {
  return Around(&WidgetSizes::SmartHint);
}
Size Splitter::impl::MinimumIdealSize() {
  return Around(&WidgetSizes::SmartMinimum);
}

void Splitter::impl::ReadWishes() {
  for (std::size_t i = 0; i < panes_.size(); ++i) {
    SplitPane& pane = sizes_.panes[i];
    pane.hidden = !panes_[i].IsShown();
    if (pane.hidden) continue;
    const WidgetSizes& sizes = SizesOf(*panes_[i].view);
    const SizePolicy& policy = sizes.policy;
    pane.minimum = Along(sizes.SmartMinimum());
    pane.maximum = Along(sizes.maximum);
    pane.hint = Along(sizes.SmartHint());
    pane.stretch = isVertical_ ? policy.GetVerticalStretch() : policy.GetHorizontalStretch();
    pane.expansive =
        (policy.ExpandingDirections() &
         (isVertical_ ? Orientation::Vertical : Orientation::Horizontal)) != Orientation::None;
  }
}

void Splitter::impl::ReadForm(const FormReader& form) {
  SetOrientation(form.IsVertical());
  SetHandleWidth(form.Integer(L"handleWidth", handleWidth_));
  isDynamic = form.Flag(L"opaqueResize", true);
}

// -- Panes --------------------------------------------------------------------

void Splitter::impl::AddView(BaseGUIObject* view) {
  if (!view) return;
  panes_.push_back({view});
  sizes_.panes.emplace_back();
  AddChild(*view);
  if (!GetHandle()) return;
  CreatePane(panes_.size() - 1);
  if (HWND window = view->GetPlatformHandle())
    ::SetParent(window, panes_.back().window->GetSafeHwnd());
  UpdateLayout();
  InvalidateLayout();
}

std::vector<BaseGUIObject*> Splitter::impl::Views() const {
  std::vector<BaseGUIObject*> views;
  for (const Pane& pane : panes_)
    if (pane.view) views.push_back(pane.view);
  return views;
}

bool Splitter::impl::Pane::IsShown() const {
  return view && view->IsVisible();
}

void Splitter::impl::OnChildCreated(BaseGUIObject& view) {
  ArrangingImpl::OnChildCreated(view);
  if (GetHandle()) UpdateLayout();
}

void Splitter::impl::ForgetChild(BaseGUIObject& view) {
  ArrangingImpl::ForgetChild(view);
  for (Pane& pane : panes_)
    if (pane.view == &view) pane.view = nullptr;
}

bool Splitter::impl::CreateNative(CWnd* parent) {
  if (!ArrangingImpl::CreateNative(parent)) return false;
  for (std::size_t i = 0; i < panes_.size(); ++i) CreatePane(i);
  return true;
}

// Panes and handles in turn: Tab goes through them in their order.
void Splitter::impl::CreatePane(std::size_t index) {
  Pane& pane = panes_[index];
  pane.window->Create(CRect(), GetCWnd());
  pane.handle->Create(L"", WS_CHILD | WS_TABSTOP, CRect(), GetCWnd());
  for (HWND window : {pane.window->GetSafeHwnd(), pane.handle->GetSafeHwnd()})
    SetWindowPos(window, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  TieHandle(index);
}

// What a moved handle brings about may destroy the splitter.
void Splitter::impl::TieHandle(std::size_t index) {
  auto guarded = [this](auto action) {
    return [this, action](auto... distance) {
      if (!Owner()) return;
      const auto held = Owner()->GetBaseImpl();
      action(distance...);
    };
  };
  SplitHandle& handle = *panes_[index].handle;
  handle.sideBySide = !isVertical_;
  handle.onDragged = guarded([this, index](int distance) { DragTo(index, distance); });
  handle.onKeyMoved = guarded([this, index](int distance) { MoveBorder(index, distance); });
  handle.onDropped = guarded([this] { Drop(); });
  handle.onCancelled = guarded([this] { CancelDrag(); });
}

HWND Splitter::impl::HolderOf(const BaseGUIObject& view) {
  for (const Pane& pane : panes_)
    if (pane.view == &view) return pane.window->GetSafeHwnd();
  return GetHandle();
}

void Splitter::impl::SetOrientation(bool vertical) {
  isVertical_ = vertical;
  for (Pane& pane : panes_) pane.handle->sideBySide = !vertical;
  UpdateLayout();
  InvalidateLayout();
}

void Splitter::impl::SetHandleWidth(int width) {
  handleWidth_ = width;
  UpdateLayout();
  InvalidateLayout();
}

void Splitter::impl::GiveSizes(const std::list<int>& sizes) {
  std::vector<int> pixels;
  for (int size : sizes) pixels.push_back(Scale(size));
  sizes_.GiveSizes(pixels);
  UpdateLayout();
}

// -- Arrangement --------------------------------------------------------------

void Splitter::impl::UpdateLayout() {
  if (!GetHandle() || isDragging_) return;
  ReadWishes();
  sizes_.Arrange(Along(GetClientRect().GetSize()) - HandlesSize());
  Place();
}

CRect Splitter::impl::PaneRect(int from, int length) {
  CRect client = GetClientRect().PlatformRect();
  return isVertical_ ? CRect(0, from, client.Width(), from + length)
                     : CRect(from, 0, from + length, client.Height());
}

// Moving a view may run a host's code, and that may destroy the splitter.
void Splitter::impl::Place() {
  int from = 0;
  auto last = std::find_if(sizes_.panes.rbegin(), sizes_.panes.rend(),
                           [](const SplitPane& pane) { return !pane.hidden; });
  auto handles =
      static_cast<std::size_t>(std::max<std::ptrdiff_t>(sizes_.panes.rend() - last - 1, 0));
  for (std::size_t i = 0; i < panes_.size(); ++i) {
    const SplitPane& pane = sizes_.panes[i];
    bool hasHandle = !pane.hidden && i < handles;
    panes_[i].handle->ShowWindow(hasHandle ? SW_SHOW : SW_HIDE);
    if (hasHandle) panes_[i].handle->MoveWindow(PaneRect(from + pane.size, HandleSize()));
    int next = from + pane.size + (hasHandle ? HandleSize() : 0);
    PlacePane(i, from);
    if (!GetHandle()) return;
    from = next;
  }
}

void Splitter::impl::PlacePane(std::size_t index, int from) {
  const Pane& pane = panes_[index];
  if (!pane.window->GetSafeHwnd()) return;
  const SplitPane& sizes = sizes_.panes[index];
  pane.window->ShowWindow(sizes.hidden ? SW_HIDE : SW_SHOW);
  CRect rect = PaneRect(from, sizes.size);
  pane.window->MoveWindow(rect);
  if (pane.view && pane.view->GetPlatformHandle())
    pane.view->MoveWindow(0, 0, rect.Width(), rect.Height(), true);
}

// -- Moving the handles -------------------------------------------------------

void Splitter::impl::MoveBorder(std::size_t index, int distance) {
  if (GetHandle() && sizes_.MoveBorder(index, distance) != 0) Place();
}

void Splitter::impl::DragTo(std::size_t index, int distance) {
  if (!isDragging_) sizesAtPress_ = sizes_;
  isDragging_ = true;
  sizes_ = sizesAtPress_;
  sizes_.MoveBorder(index, distance);
  if (isDynamic) return Place();
  ShowTracker(index);
}

void Splitter::impl::ShowTracker(std::size_t index) {
  if (!tracker_) {
    tracker_ = std::make_shared<TrackerWnd>();
    tracker_->Create(L"", WS_CHILD | WS_VISIBLE | WS_DISABLED, CRect(), GetCWnd());
    tracker_->SetWindowPos(HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  int from = 0;
  for (std::size_t i = 0; i <= index; ++i)
    from += sizes_.panes[i].size + (i < index && !sizes_.panes[i].hidden ? HandleSize() : 0);
  tracker_->MoveWindow(PaneRect(from, HandleSize()));
}

void Splitter::impl::Drop() {
  tracker_.reset();
  isDragging_ = false;
  Place();
}

void Splitter::impl::CancelDrag() {
  tracker_.reset();
  if (!isDragging_) return;
  isDragging_ = false;
  sizes_ = sizesAtPress_;
  Place();
}

// Escape takes a drag back.
bool Splitter::impl::OnPreTranslate(const MSG& message) {
  bool isEscape = message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE;
  if (!isEscape || !isDragging_) return false;
  ReleaseCapture();
  return true;
}

}  // namespace Wexa
