#include "GroupBox.h"

#include <algorithm>
#include <functional>

#include "MFC/ContainerImpl.h"
#include "MFC/base/WidgetColors.h"
#include "WexaConfig.h"
#include "form/FormReader.h"
#include "platform/ControlConstants.h"
#include "platform/DialogManager.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr int kTitleInset = 24;
constexpr int kCheckIndent = 8;
constexpr int kCheckGap = 3;  // to the frame on both sides

// The check box that stands for a checkable box's title.
class TitleCheck : public CButton, public std::enable_shared_from_this<TitleCheck> {
 public:
  std::function<void(ControlPalette&)> fillPalette;
  std::function<void()> onClicked;

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    const auto self = shared_from_this();  // a click may destroy the box
    if (message != WM_GETCONTROLPALETTE) return CButton::WindowProc(message, wParam, lParam);
    if (lParam) fillPalette(*reinterpret_cast<ControlPalette*>(lParam));
    return 1;
  }
  BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM, LRESULT*) override {
    if (message != WM_COMMAND || HIWORD(wParam) != BN_CLICKED) return FALSE;
    onClicked();
    return TRUE;
  }
};

}  // namespace

class GroupBox::impl : public ContainerImpl {
 public:
  explicit impl(GroupBox* owner) : ContainerImpl(owner) {
    check_->fillPalette = [this](ControlPalette& palette) { FillCheckPalette(palette); };
    check_->onClicked = [this] { SetChecked(!isChecked_); };
  }

  Size IdealSize() override { return WithTitle(ContainerImpl::IdealSize()); }
  Size MinimumIdealSize() override { return WithTitle(ContainerImpl::MinimumIdealSize()); }

  void ReadForm(const FormReader& form) override {
    SetTitleAlignment(static_cast<TitleAlignment>(form.HorizontalAlignment()));
    if (!form.Flag(L"checkable", false)) return;
    SetCheckable(true);
    SetChecked(form.Flag(L"checked", true));
  }

  void SetTitle(const std::wstring& title) {
    Creation().title = title;
    if (check_->GetSafeHwnd()) check_->SetWindowText(title);
    UpdateMargins();
    PlaceCheck();
    if (GetHandle()) GetCWnd()->Invalidate();
    InvalidateLayout();
  }
  const std::wstring& Title() const { return Creation().title; }

  void SetTitleAlignment(TitleAlignment alignment) {
    across_ = static_cast<int>(alignment);
    PlaceCheck();
    if (GetHandle()) GetCWnd()->Invalidate();
  }

  void SetCheckable(bool checkable) {
    isCheckable_ = checkable;
    UpdateMargins();
    ShowCheck();
    EnableChildren();
    if (GetHandle()) GetCWnd()->Invalidate();
    InvalidateLayout();
  }
  bool IsCheckable() const { return isCheckable_; }
  bool IsChecked() const { return isChecked_; }

  void SetChecked(bool checked) {
    if (isChecked_ == checked) return;
    isChecked_ = checked;
    if (check_->GetSafeHwnd()) check_->SetCheck(checked);
    EnableChildren();
    if (Owner() && isCheckable_) static_cast<GroupBox*>(Owner())->Toggled(checked);
  }

  void Enable(bool enable, bool remember) override {
    ContainerImpl::Enable(enable, remember);
    if (check_->GetSafeHwnd()) check_->EnableWindow(GetCWnd()->IsWindowEnabled());
  }

  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    ContainerImpl::Paint(painter, client, palette);
    CRect frame = client;
    if (isCheckable_) frame.top += TitleHeight() / 2;
    Theme::DrawGroupBox(painter, frame, isCheckable_ ? L"" : Title(), Font(), Shown().State(),
                        palette, across_);
    if (isCheckable_)
      painter.FillRect(CheckRect().Shrunk(-Scale(kCheckGap), 0), palette.background);
  }

  bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT&) override {
    if (message == WM_SETFONT) {
      UpdateMargins();
      if (check_->GetSafeHwnd()) check_->SendMessage(message, wParam, lParam);
      PlaceCheck();
    }
    if (message == WM_SIZE) PlaceCheck();
    return false;
  }

  // The mnemonic of a plain title leads to the first widget in the box; a check box has its own.
  bool OnMnemonic(wchar_t letter) override {
    if (isCheckable_ || !IsMnemonic(Title(), letter)) return false;
    HWND first = GetNextDlgTabItem(GetHandle(), nullptr, FALSE);
    if (first)
      GetCWnd()->GetTopLevelParent()->SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first),
                                                  TRUE);
    return first != nullptr;
  }

 protected:
  bool IsOpen() override { return (!isCheckable_ || isChecked_) && ContainerImpl::IsOpen(); }

  bool CreateNative(CWnd* parent) override {
    UpdateMargins();
    if (!ContainerImpl::CreateNative(parent)) return false;
    ShowCheck();
    return true;
  }

 private:
  void FillCheckPalette(ControlPalette& palette) {
    palette.background = BackgroundColor();
    Wexa::FillCheckPalette(palette, GetSkinManager());
    palette.radius = Scale(checkRadius_);
  }

  // Makes the check box, or takes it away.
  void ShowCheck() {
    if (!GetHandle()) return;
    if (!isCheckable_) {
      check_->DestroyWindow();
      return;
    }
    if (check_->GetSafeHwnd()) return;
    DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX;
    check_->Create(Title(), style, CheckRect(), GetCWnd(), 0);
    check_->SetFont(Font());
    check_->SetCheck(isChecked_);
    check_->SetWindowPos(HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }

  void PlaceCheck() {
    if (check_->GetSafeHwnd()) check_->MoveWindow(CheckRect());
  }

  Size CheckSize() const { return CheckSizeFor(Font(), Title()); }

  CRect CheckRect() {
    Size size = CheckSize();
    int indent = Scale(kCheckIndent);
    int room = GetCWnd()->GetClientRect().Width() - 2 * indent - size.Width();
    int left = indent + std::max(room, 0) * across_ / 2;
    return {left, 0, left + size.Width(), size.Height()};
  }

  int TitleHeight() const {
    return isCheckable_ ? CheckSize().Height() : Theme::GroupBoxMargins(Font(), true).top;
  }

  RECT Margins() const {
    RECT margins = Theme::GroupBoxMargins(Font(), !Title().empty() || isCheckable_);
    if (isCheckable_) margins.top = TitleHeight();
    return margins;
  }

  // The layout inside starts below the title.
  void UpdateMargins() {
    RECT margins = Margins();
    auto& sides = Links().contentsMargins;
    sides[0] = static_cast<std::int16_t>(margins.left);
    sides[1] = static_cast<std::int16_t>(margins.top);
    sides[2] = static_cast<std::int16_t>(margins.right);
    sides[3] = static_cast<std::int16_t>(margins.bottom);
  }

  Size WithTitle(const Size& content) const {
    int text = isCheckable_ ? CheckSize().Width() : GetTextExtent(Font(), Title()).cx;
    RECT margins = Margins();
    return {std::max(content.Width(), text + Scale(kTitleInset)),
            std::max(content.Height(), static_cast<int>(margins.top + margins.bottom))};
  }

  std::shared_ptr<TitleCheck> check_ = std::make_shared<TitleCheck>();
  int checkRadius_ = GetCheckboxRadius();
  bool isCheckable_ = false;
  bool isChecked_ = true;
  int across_ = 0;
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
void GroupBox::SetTitleAlignment(TitleAlignment alignment) {
  impl_->SetTitleAlignment(alignment);
}
std::wstring GroupBox::GetTitle() {
  return impl_->Title();
}
void GroupBox::SetCheckable(bool checkable) {
  impl_->SetCheckable(checkable);
}
bool GroupBox::IsCheckable() const {
  return impl_->IsCheckable();
}
void GroupBox::SetChecked(bool checked) {
  const auto held = impl_;  // a handler may destroy the box
  held->SetChecked(checked);
}
bool GroupBox::IsChecked() const {
  return impl_->IsChecked();
}

}  // namespace Wexa
