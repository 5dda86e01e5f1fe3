#include "GroupBox.h"

#include <algorithm>

#include "MFC/ContainerImpl.h"
#include "MFC/WidgetColors.h"
#include "platform/Theme.h"

namespace Wexa {

class GroupBox::impl : public ContainerImpl {
 public:
  explicit impl(GroupBox* owner) : ContainerImpl(owner) {}

  Size IdealSize() override { return WithTitle(ContainerImpl::IdealSize()); }
  Size MinimumIdealSize() override { return WithTitle(ContainerImpl::MinimumIdealSize()); }

  void SetTitle(const std::wstring& title) {
    Creation().title = title;
    UpdateMargins();
    if (GetHandle()) GetCWnd()->Invalidate();
    InvalidateLayout();
  }
  const std::wstring& Title() { return Creation().title; }

  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    ContainerImpl::Paint(painter, client, palette);
    ControlState state;
    state.enabled = GetCWnd()->IsWindowEnabled();
    Theme::DrawGroupBox(painter, client, Title(), Font(), state, palette);
  }

  // The layout inside starts below the title.
  void UpdateMargins() {
    RECT margins = Theme::GroupBoxMargins(Font(), !Title().empty());
    auto& sides = Links().contentsMargins;
    sides[0] = static_cast<std::int16_t>(margins.left);
    sides[1] = static_cast<std::int16_t>(margins.top);
    sides[2] = static_cast<std::int16_t>(margins.right);
    sides[3] = static_cast<std::int16_t>(margins.bottom);
  }

 protected:
  bool CreateNative(CWnd* parent) override {
    UpdateMargins();
    return ContainerImpl::CreateNative(parent);
  }

 private:
  Size WithTitle(const Size& content) {
    constexpr int kTitleInset = 24;
    int title = GetTextExtent(Font(), Title()).cx + Scale(kTitleInset);
    RECT margins = Theme::GroupBoxMargins(Font(), !Title().empty());
    return {std::max(content.Width(), title),
            std::max(content.Height(), static_cast<int>(margins.top + margins.bottom))};
  }
};

GroupBox::GroupBox() : BaseGUIObject(GuiType::GroupBox), impl_(std::make_shared<impl>(this)) {}
GroupBox::~GroupBox() {
  ReleaseImpl();
}

bool GroupBox::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> GroupBox::GetBaseImpl() const {
  return impl_;
}
Size GroupBox::IdealSize() {
  return impl_->IdealSize();
}
void GroupBox::SetTitle(const std::wstring& title) {
  impl_->SetTitle(title);
}
std::wstring GroupBox::GetTitle() {
  return impl_->Title();
}

}  // namespace Wexa
