#include "TabView.h"

#include <algorithm>
#include <string>
#include <vector>

#include "ChildDialog.h"
#include "MFC/base/WidgetColors.h"
#include "MFC/containers/PagesImpl.h"
#include "MFC/containers/TabStrip.h"
#include "form/FormReader.h"
#include "platform/DialogManager.h"
#include "platform/Painter.h"
#include "platform/VirtualKeys.h"

namespace Wexa {

namespace {

constexpr int kPageBorder = 1;
constexpr int kShortestStrip = 96;
constexpr std::size_t kLongestCaption = 255;

TabStrip::Edge EdgeOf(TabPosition position) {
  switch (position) {
    case TabPosition::South: return TabStrip::Edge::Bottom;
    case TabPosition::West: return TabStrip::Edge::Left;
    case TabPosition::East: return TabStrip::Edge::Right;
    default: return TabStrip::Edge::Top;
  }
}

TabPosition PositionOf(const FormReader& form) {
  if (form.Has(L"tabPosition", L"QTabWidget::South")) return TabPosition::South;
  if (form.Has(L"tabPosition", L"QTabWidget::West")) return TabPosition::West;
  return form.Has(L"tabPosition", L"QTabWidget::East") ? TabPosition::East : TabPosition::North;
}

}  // namespace

class TabView::impl : public PagesImpl {
 public:
  explicit impl(TabView* owner) : PagesImpl(owner) {
    Creation().style |= WS_TABSTOP;
    strip_->onChosen = [this](int index) { ChangeByUser(index); };
    strip_->isEnabled = [this](int index) { return IsPageEnabled(index); };
  }

  void AddPage(ChildDialog* page, const std::wstring& caption) {
    if (!page) return;
    PagesImpl::AddPage(page);
    captions_.push_back(caption);
    RefreshStrip();
  }

  void ReadForm(const FormReader& form) override {
    PagesImpl::ReadForm(form);
    SetPosition(PositionOf(form));
  }
  void TakeChild(BaseGUIObject& child, const FormReader&) override {
    AddPage(dynamic_cast<ChildDialog*>(&child), ImplOf(&child)->Creation().text);
  }
  SizePolicy DefaultPolicy() const override {
    return {SizePolicy::Expanding, SizePolicy::Expanding};
  }

  void SetPosition(TabPosition position) {
    position_ = position;
    strip_->SetEdge(EdgeOf(position));
    UpdateLayout();
    RefreshSkinColors();
    InvalidateLayout();
  }

  void SetCaption(int index, const std::wstring& text) {
    if (!Page(index)) return;
    captions_[static_cast<std::size_t>(index)] = text;
    RefreshStrip();
  }
  std::wstring Caption(int index) const {
    return Page(index) ? captions_[static_cast<std::size_t>(index)] : L"";
  }

  bool SetCurrentIndex(int index, bool updateLayout) override {
    int before = CurrentIndex();
    if (!Page(index)) return false;
    strip_->SetCurrent(index);
    if (!PagesImpl::SetCurrentIndex(index, updateLayout)) return false;
    if (index != before) static_cast<TabView*>(Owner())->CurrentChanged(index);
    return true;
  }

  void EnablePage(int index, bool enable, bool remember) {
    PagesImpl::EnablePage(index, enable, remember);
    if (strip_->GetSafeHwnd()) strip_->Invalidate();
  }

  void Enable(bool enable, bool remember) override {
    PagesImpl::Enable(enable, remember);
    if (strip_->GetSafeHwnd()) strip_->EnableWindow(GetCWnd()->IsWindowEnabled());
  }

  void UpdateLayout() override {
    if (strip_->GetSafeHwnd()) {
      strip_->MoveWindow(StripRect(GetCWnd()->GetClientRect()));
      strip_->Arrange();
    }
    PagesImpl::UpdateLayout();
  }

  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    PagesImpl::Paint(painter, client, palette);
    painter.FrameRect(FrameOfPages(client), palette.border, Border());
  }

  // Control with Tab, or with a page key, turns the pages from anywhere inside.
  bool OnPreTranslate(const MSG& message) override {
    if (message.message != WM_KEYDOWN || GetKeyState(VK_CONTROL) >= 0) return false;
    int direction = 0;
    if (message.wParam == VK_TAB) direction = GetKeyState(VK_SHIFT) < 0 ? -1 : 1;
    if (message.wParam == VK_NEXT) direction = 1;
    if (message.wParam == VK_PRIOR) direction = -1;
    if (direction == 0) return false;
    int next = strip_->NextEnabled(CurrentIndex(), direction, true);
    if (next >= 0) ChangeByUser(next);
    return true;
  }

  bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT&) override {
    if (message == WM_SETFONT) strip_->SendMessage(message, wParam, lParam);
    if (message == WM_SETFOCUS) strip_->SetFocus();
    return false;
  }

  bool OnMnemonic(wchar_t letter) override {
    for (int i = 0; i < PageCount(); ++i) {
      if (!IsMnemonic(Caption(i), letter) || !IsPageEnabled(i)) continue;
      strip_->SetFocus();
      if (Owner()) ChangeByUser(i);
      return true;
    }
    return false;
  }

 protected:
  void FillPalette(ControlPalette& palette) override {
    PagesImpl::FillPalette(palette);
    palette.hoverBorder = SlotColor(GetSkinManager(), Slot::kButtonHoverBorder);
  }

  void OnPageGone(int index) override {
    captions_.erase(captions_.begin() + index);
    RefreshStrip();
  }

  bool CreateNative(CWnd* parent) override {
    if (!PagesImpl::CreateNative(parent)) return false;
    DWORD tabStop = Creation().style & WS_TABSTOP;
    strip_->Create(L"", WS_CHILD | WS_VISIBLE | tabStop, CRect(), GetCWnd());
    RefreshStrip();
    return true;
  }

  RECT PageMargins() const override {
    RECT margins{Border(), Border(), Border(), Border()};
    SideOfStrip(margins) = Thickness();
    return margins;
  }

  Size OwnSize() const override { return SizeWithLength(strip_->Length(Font())); }
  // Tabs that do not fit are scrolled.
  Size OwnMinimumSize() const override {
    return SizeWithLength(std::min(strip_->Length(Font()), Scale(kShortestStrip)));
  }

  HWND FocusAfterChange() override {
    HWND page = Page(CurrentIndex())->GetPlatformHandle();
    HWND inside = GetNextDlgTabItem(page, nullptr, FALSE);
    return inside ? inside : strip_->GetSafeHwnd();
  }

 private:
  static int Border() { return std::max(1, Scale(kPageBorder)); }
  int Thickness() const { return strip_->Thickness(Font()); }

  LONG& SideOfStrip(RECT& sides) const {
    switch (position_) {
      case TabPosition::South: return sides.bottom;
      case TabPosition::West: return sides.left;
      case TabPosition::East: return sides.right;
      default: return sides.top;
    }
  }

  Size SizeWithLength(int length) const {
    const int across = Thickness() + Border();
    return strip_->IsUpright() ? Size(across, length) : Size(length, across);
  }

  CRect StripRect(CRect client) const {
    switch (position_) {
      case TabPosition::South: client.top = client.bottom - Thickness(); break;
      case TabPosition::West: client.right = Thickness(); break;
      case TabPosition::East: client.left = client.right - Thickness(); break;
      default: client.bottom = Thickness(); break;
    }
    return client;
  }

  // It shares the strip's inner line.
  CRect FrameOfPages(CRect client) const {
    const int inner = Thickness() - Border();
    const bool isFar = position_ == TabPosition::South || position_ == TabPosition::East;
    SideOfStrip(client) += isFar ? -inner : inner;
    return client;
  }

  bool IsPageEnabled(int index) const {
    ChildDialog* page = Page(index);
    return page && (!page->GetPlatformHandle() || page->IsEnabled());
  }

  // A handler may destroy the view.
  void ChangeByUser(int index) {
    if (!Owner()) return;
    const auto held = Owner()->GetBaseImpl();
    static_cast<TabView*>(Owner())->SetCurrentIndex(index);
  }

  void RefreshStrip() {
    strip_->SetCaptions(captions_);
    strip_->SetCurrent(CurrentIndex());
    InvalidateLayout();
  }

  std::shared_ptr<TabStrip> strip_ = std::make_shared<TabStrip>();
  std::vector<std::wstring> captions_;
  TabPosition position_ = TabPosition::North;
};

TabView::TabView() : BaseGUIObject(GuiType::TabView), impl_(std::make_shared<impl>(this)) {}
TabView::~TabView() {
  ReleaseImpl();
}

bool TabView::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> TabView::GetBaseImpl() const {
  return impl_;
}

void TabView::AddPage(ChildDialog* page, const std::wstring& caption) {
  impl_->AddPage(page, caption);
}

void TabView::SetTabPosition(TabPosition position) {
  const auto held = impl_;  // a page that moves may have the view destroyed; so below
  held->SetPosition(position);
}

int TabView::GetCurrentIndex() {
  return impl_->PageCount() ? impl_->CurrentIndex() : -1;
}
int TabView::GetItemCount() {
  return impl_->PageCount();
}

void TabView::SetCurrentIndex(int index) {
  const auto held = impl_;
  held->SetCurrentIndex(index, true);
}

void TabView::ActivateNextTab() {
  int count = GetItemCount();
  if (count > 0) SetCurrentIndex((GetCurrentIndex() + 1) % count);
}

void TabView::ActivatePreviousTab() {
  int current = GetCurrentIndex();
  SetCurrentIndex((current < 1 ? GetItemCount() : current) - 1);
}

void TabView::EnablePage(int index, bool enable, bool remember) {
  const auto held = impl_;
  held->EnablePage(index, enable, remember);
}

void TabView::SetTabText(int index, const std::wstring& text) {
  impl_->SetCaption(index, text);
}

std::wstring TabView::GetTabText(int index) {
  return impl_->Caption(index).substr(0, kLongestCaption);
}

}  // namespace Wexa
