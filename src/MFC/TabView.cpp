#include "TabView.h"

#include <algorithm>
#include <string>
#include <vector>

#include "ChildDialog.h"
#include "MFC/PagesImpl.h"
#include "MFC/WidgetColors.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr int kPageBorder = 1;
constexpr std::size_t kLongestCaption = 255;

}  // namespace

class TabView::impl : public PagesImpl {
 public:
  using PagesImpl::PagesImpl;

  void SetCaption(int index, const std::wstring& text) {
    if (index < 0) return;
    auto place = static_cast<std::size_t>(index);
    if (place >= captions_.size()) captions_.resize(place + 1);
    captions_[place] = text;
    if (GetHandle()) GetCWnd()->Invalidate();
    InvalidateLayout();
  }

  std::wstring Caption(int index) const {
    auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < captions_.size() ? captions_[place] : L"";
  }

  bool SetCurrentIndex(int index, bool updateLayout) override {
    if (!PagesImpl::SetCurrentIndex(index, updateLayout)) return false;
    if (GetHandle()) GetCWnd()->Invalidate();
    if (Owner()) static_cast<TabView*>(Owner())->CurrentChanged(index);
    return true;
  }

  void FillPalette(ControlPalette& palette) override {
    FillButtonPalette(palette, GetSkinManager());
    palette.background = BackgroundColor();
    palette.pressedFace = palette.background;
    palette.border = SlotColor(GetSkinManager(), Slot::kGroupBorder);
  }

  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    PagesImpl::Paint(painter, client, palette);
    CRect page = client;
    page.top = StripHeight() - Border();
    painter.FrameRect(page, palette.border, Border());
    for (int i = 0; i < PageCount(); ++i)
      if (i != CurrentIndex()) PaintTab(painter, i, palette);
    if (PageCount() > 0) PaintTab(painter, CurrentIndex(), palette);
  }

  bool OnMessage(UINT message, WPARAM, LPARAM lParam, LRESULT&) override {
    if (message != WM_LBUTTONDOWN) return false;
    int tab = TabAt({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
    if (tab < 0 || tab == CurrentIndex()) return false;
    SetCurrentIndex(tab, true);
    return true;
  }

 protected:
  RECT PageMargins() const override { return {Border(), StripHeight(), Border(), Border()}; }
  Size OwnSize() const override { return {TabRect(PageCount()).left, StripHeight()}; }

 private:
  static int Border() { return std::max(1, Scale(kPageBorder)); }
  int StripHeight() const { return GetFontMetrics(Font()).height + 2 * Theme::TabPadding().cy; }

  // The tab after the last one starts where the strip ends.
  CRect TabRect(int index) const {
    CRect tab(0, 0, 0, StripHeight());
    for (int i = 0; i <= index; ++i) {
      tab.left = tab.right;
      tab.right += GetTextExtent(Font(), Caption(i)).cx + 2 * Theme::TabPadding().cx;
    }
    return tab;
  }

  int TabAt(POINT point) const {
    for (int i = 0; i < PageCount(); ++i)
      if (TabRect(i).Contains(point)) return i;
    return -1;
  }

  void PaintTab(Painter& painter, int index, const ControlPalette& palette) {
    ControlState state;
    state.enabled = Page(index)->IsEnabled();
    Theme::DrawTab(painter, TabRect(index), Caption(index), Font(), index == CurrentIndex(), state,
                   palette);
  }

  std::vector<std::wstring> captions_;
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
  impl_->AddPage(page);
  impl_->SetCaption(impl_->PageCount() - 1, caption);
}

int TabView::GetCurrentIndex() {
  return impl_->PageCount() ? impl_->CurrentIndex() : -1;
}
int TabView::GetItemCount() {
  return impl_->PageCount();
}

void TabView::SetCurrentIndex(int index) {
  const auto held = impl_;  // a handler may destroy the view
  held->SetCurrentIndex(index, true);
}

void TabView::ActivateNextTab() {
  int count = GetItemCount();
  if (count > 0) SetCurrentIndex((GetCurrentIndex() + 1) % count);
}

void TabView::ActivatePreviousTab() {
  int current = GetCurrentIndex();
  SetCurrentIndex(current < 1 ? GetItemCount() - 1 : current - 1);
}

void TabView::EnablePage(int index, bool enable, bool remember) {
  impl_->EnablePage(index, enable, remember);
}

void TabView::SetTabText(int index, const std::wstring& text) {
  if (index < impl_->PageCount()) impl_->SetCaption(index, text);
}

std::wstring TabView::GetTabText(int index) {
  return impl_->Caption(index).substr(0, kLongestCaption);
}

}  // namespace Wexa
