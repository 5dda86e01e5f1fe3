#include "MFC/tips/ToolTips.h"

#include "BaseGUIObject.h"
#include "MFC/BaseImplMFC.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr UINT kShowTimer = 1;
constexpr UINT kHideTimer = 2;
constexpr UINT kRestMilliseconds = 500;
constexpr UINT kTipMilliseconds = 5000;
constexpr int kPointerHeight = 20;

// Whether input at the point that came to `window` is meant for the widget. A disabled window gets
// no input itself: it comes to the window that it stands on.
bool IsUnder(const BaseGUIObject& widget, HWND window, POINT screen) {
  HWND own = widget.GetPlatformHandle();
  if (!own || !IsWindowVisible(own)) return false;
  if (own != window && (IsWindowEnabled(own) || GetParent(own) != window)) return false;
  CRect place;
  GetWindowRect(own, &place);
  return place.Contains(screen);
}

bool IsInArea(const BaseGUIObject& widget, const std::optional<CRect>& area, POINT screen) {
  ScreenToClient(widget.GetPlatformHandle(), &screen);
  return !area || area->Contains(screen);
}

bool IsSame(const std::weak_ptr<BaseGUIObject>& a, const std::weak_ptr<BaseGUIObject>& b) {
  return !a.owner_before(b) && !b.owner_before(a);
}

}  // namespace

// -- The window

void ToolTipWindow::ShowLater(BaseGUIObject& widget, const TipContent& content) {
  Cancel();
  if (!Prepare(widget.GetPlatformHandle())) return;
  SetContent(content, TipPalette(widget.GetSkinManager()), ImplOf(&widget)->Font());
  SetTimer(kShowTimer, kRestMilliseconds);
}

void ToolTipWindow::Cancel() {
  if (!GetSafeHwnd()) return;
  KillTimer(kShowTimer);
  KillTimer(kHideTimer);
  Hide();
}

LRESULT ToolTipWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCHITTEST) return HTTRANSPARENT;
  if (message != WM_TIMER) return TipWindow::WindowProc(message, wParam, lParam);
  if (wParam == kHideTimer) Cancel();
  if (wParam == kShowTimer) ShowAtPointer();
  return 0;
}

// Below the pointer, or above it where there is no room.
void ToolTipWindow::ShowAtPointer() {
  KillTimer(kShowTimer);
  SetTimer(kHideTimer, kTipMilliseconds);
  POINT pointer{};
  GetCursorPos(&pointer);
  const SIZE size = ContentSize();
  int top = pointer.y + Scale(kPointerHeight);
  if (top + size.cy > ScreenArea().bottom) top = pointer.y - size.cy;
  ShowAt({pointer.x, top, pointer.x + size.cx, top + size.cy});
}

// -- The dialog's tips

void ToolTips::Set(const std::shared_ptr<BaseGUIObject>& widget, const TipContent& content, int id,
                   const CRect* area) {
  if (!widget) return;
  std::erase_if(entries_, [&](const Entry& entry) {
    auto known = entry.widget.lock();
    return !known || (known == widget && entry.id == id);
  });
  Leave();
  if (content.text.empty() && content.title.empty()) return;
  entries_.push_back({widget, content, id, area ? std::optional(*area) : std::nullopt});
}

void ToolTips::OnInput(HWND window, UINT message) {
  if (entries_.empty()) return;
  switch (message) {
    case WM_MOUSEMOVE: return OnMove(window);
    case WM_MOUSELEAVE:
      if (window == hoveredIn_) Leave();
      return;
    default: window_.Cancel();
  }
}

void ToolTips::OnMove(HWND window) {
  POINT pointer{};
  GetCursorPos(&pointer);
  const Entry* entry = EntryUnder(window, pointer);
  if (!entry) return Leave();
  const bool isKnown = hoveredIn_ == window && IsSame(entry->widget, hovered_);
  if (isKnown && entry->id == hoveredId_) return;
  hoveredIn_ = window;
  hovered_ = entry->widget;
  hoveredId_ = entry->id;
  window_.ShowLater(*entry->widget.lock(), entry->content);
}

void ToolTips::Leave() {
  hoveredIn_ = nullptr;
  hovered_.reset();
  window_.Cancel();
}

const ToolTips::Entry* ToolTips::EntryUnder(HWND window, POINT screen) const {
  for (const Entry& entry : entries_) {
    auto widget = entry.widget.lock();
    if (widget && IsUnder(*widget, window, screen) && IsInArea(*widget, entry.area, screen))
      return &entry;
  }
  return nullptr;
}

}  // namespace Wexa
