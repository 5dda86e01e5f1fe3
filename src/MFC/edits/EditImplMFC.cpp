#include "MFC/EditImplMFC.h"

#include "MFC/base/WidgetColors.h"
#include "platform/ControlConstants.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr wchar_t kPasswordCharacter = 0x25CF;
constexpr int kIdealCharacters = 17;
constexpr int kMinimumCharacters = 5;
constexpr DWORD kAlignmentMask = ES_CENTER | ES_RIGHT;

// Raised while the program sets a text: its notifications are then not the user's.
class FlagGuard {
 public:
  explicit FlagGuard(bool& flag) : flag_(flag) { flag_ = true; }
  ~FlagGuard() { flag_ = false; }
  FlagGuard(const FlagGuard&) = delete;
  FlagGuard& operator=(const FlagGuard&) = delete;

 private:
  bool& flag_;
};

}  // namespace

class Edit::impl::EditMFC : public CEdit {
 public:
  explicit EditMFC(impl& impl) : impl_(impl) {}

 protected:
  BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
    if (message != WM_COMMAND) return CEdit::OnChildNotify(message, wParam, lParam, result);
    impl_.OnNotify(HIWORD(wParam));  // may destroy the widget, and this with it
    return TRUE;
  }

 private:
  impl& impl_;
};

Edit::impl::impl(Edit* owner) : BaseImplMFC(owner), window_(std::make_unique<EditMFC>(*this)) {
  Creation().style |= WS_TABSTOP | WS_GROUP | WS_BORDER | ES_AUTOHSCROLL;
}

Edit::impl::~impl() = default;

CWnd* Edit::impl::GetCWnd() {
  return window_.get();
}

bool Edit::impl::CreateNative(CWnd* parent) {
  if (!window_->Create(Creation().style, ScaledRect(), parent, Creation().controlId)) return false;
  window_->SetFont(Font(), false);
  if (passwordMode_ == PasswordMode::Password) window_->SetPasswordChar(kPasswordCharacter);
  if (!placeHolder_.empty()) window_->SetCueBanner(placeHolder_);
  if (limit_ >= 0) window_->SetLimitText(static_cast<UINT>(limit_));
  SetText(Creation().text);
  return true;
}

Size Edit::impl::IdealSize() {
  FontMetrics metrics = GetFontMetrics(Font());
  SIZE padding = Theme::FieldPadding();
  return {metrics.averageWidth * kIdealCharacters + 2 * padding.cx,
          metrics.height + 2 * padding.cy};
}

Size Edit::impl::MinimumIdealSize() {
  SIZE padding = Theme::FieldPadding();
  int width = GetFontMetrics(Font()).averageWidth * kMinimumCharacters + 2 * padding.cx;
  return {width, IdealSize().Height()};
}

void Edit::impl::FillPalette(ControlPalette& palette) {
  FillInputPalette(palette, GetSkinManager());
  palette.radius = Scale(radius_);
}

void Edit::impl::SetText(const std::wstring& text) {
  Creation().text = text;
  if (!GetHandle()) return;
  FlagGuard guard(changedByProgram_);
  window_->SetWindowText(text);
}

void Edit::impl::SetTextAlign(TextAlign align) {
  ChangeStyle(kAlignmentMask, static_cast<DWORD>(align) & kAlignmentMask);
}

void Edit::impl::ChangeStyle(DWORD remove, DWORD add) {
  Creation().style = (Creation().style & ~remove) | add;
  if (!GetHandle()) return;
  window_->ModifyStyle(remove, add);
  window_->Invalidate();
}

void Edit::impl::SetSelectAll() {
  Window();
  window_->SetSel(0, -1);
}

void Edit::impl::SetLimitText(int limit) {
  limit_ = limit;
  if (GetHandle()) window_->SetLimitText(static_cast<UINT>(limit));
}

void Edit::impl::SetReadOnly(bool readOnly) {
  Creation().style = (Creation().style & ~ES_READONLY) | (readOnly ? ES_READONLY : 0);
  if (GetHandle()) window_->SetReadOnly(readOnly);
}

bool Edit::impl::IsReadOnly() {
  return ((GetHandle() ? window_->GetStyle() : Creation().style) & ES_READONLY) != 0;
}

void Edit::impl::SetPlaceHolderText(const std::wstring& text) {
  placeHolder_ = text;
  if (GetHandle()) window_->SetCueBanner(text);
}

void Edit::impl::SetPasswordMode(PasswordMode mode) {
  passwordMode_ = mode;
  if (GetHandle())
    window_->SetPasswordChar(mode == PasswordMode::Password ? kPasswordCharacter : 0);
}

void Edit::impl::SetFrameMode(bool frame) {
  frame_ = frame;
  if (!frame) ChangeStyle(WS_BORDER, 0);
}

void Edit::impl::OnNotify(int code) {
  if (!Owner()) return;
  auto& owner = *static_cast<Edit*>(Owner());
  if (code == EN_KILLFOCUS) return owner.EditingFinished();
  if (code != EN_CHANGE) return;
  HWND window = GetHandle();
  std::wstring text = Text();
  bool byUser = !changedByProgram_;
  owner.TextChanged(text);
  if (byUser && IsWindow(window)) owner.TextEdited(text);
}

}  // namespace Wexa
