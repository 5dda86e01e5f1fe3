#include "MFC/EditImplMFC.h"

#include "MFC/base/WidgetColors.h"
#include "form/FormReader.h"
#include "platform/ControlConstants.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr wchar_t kPasswordCharacter = 0x25CF;
constexpr int kIdealCharacters = 17;
constexpr int kMinimumCharacters = 5;
constexpr int kFrame = 2;
constexpr int kCaretRoom = 4;  // device pixels
constexpr DWORD kAlignmentMask = ES_CENTER | ES_RIGHT;

// A flag that is up for a while.
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
  FlagGuard quiet(isBeingMade_);
  SetText(Creation().text);
  return true;
}

Size Edit::impl::IdealSize() {
  return SizeFor(kIdealCharacters).GetInflated(MinimumSize());
}

Size Edit::impl::MinimumIdealSize() {
  return SizeFor(kMinimumCharacters);
}

Size Edit::impl::SizeFor(int characters) {
  const LRESULT margins = GetHandle() ? window_->SendMessage(EM_GETMARGINS) : 0;
  const int frame = 2 * Scale(kFrame);
  const SIZE x = GetTextExtent(Font(), L"x");
  return {LOWORD(margins) + HIWORD(margins) + characters * x.cx + frame + kCaretRoom,
          x.cy + 2 * Theme::FieldPadding().cy};
}

void Edit::impl::FillPalette(ControlPalette& palette) {
  FillInputPalette(palette, GetSkinManager());
  palette.radius = Scale(radius_);
}

void Edit::impl::ReadForm(const FormReader& form) {
  SetTextAlign(static_cast<TextAlign>(form.HorizontalAlignment()));
  if (form.Has(PropertyId::ReadOnly, L"true")) SetReadOnly(true);
  if (form.Has(PropertyId::EchoMode, L"QLineEdit::Password"))
    SetPasswordMode(PasswordMode::Password);
  if (form.Has(PropertyId::Frame, L"false")) SetFrameMode(false);
  SetPlaceHolderText(form.Text(L"placeholderText"));
}

void Edit::impl::SetText(const std::wstring& text) {
  Creation().text = text;
  if (!GetHandle()) return;
  FlagGuard guard(changedByProgram_);
  window_->SetWindowText(text);
}

void Edit::impl::SetTextAlign(TextAlign align) {
  const DWORD style = align == TextAlign::Left     ? 0
                      : align == TextAlign::Center ? ES_CENTER
                                                   : ES_RIGHT;
  ChangeStyle(kAlignmentMask, style);
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
  if (frame) return;
  ChangeStyle(WS_BORDER, 0);
  if (GetHandle()) window_->ModifyStyleEx(WS_EX_CLIENTEDGE, 0, SWP_FRAMECHANGED);
}

void Edit::impl::OnNotify(int code) {
  if (!Owner() || isBeingMade_) return;
  auto& owner = *static_cast<Edit*>(Owner());
  if (code == EN_KILLFOCUS) return owner.EditingFinished();
  if (code != EN_CHANGE) return;
  HWND window = GetHandle();
  std::wstring text = Text();
  bool byUser = !changedByProgram_;
  if (byUser) owner.TextEdited(text);
  if (IsWindow(window)) owner.TextChanged(text);
}

}  // namespace Wexa
