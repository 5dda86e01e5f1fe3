#include "MFC/ButtonImplMFC.h"

#include <algorithm>

#include "MFC/EventDispatch.h"
#include "MFC/base/WidgetColors.h"
#include "WexaException.h"
#include "form/FormReader.h"
#include "platform/ControlConstants.h"
#include "platform/Painter.h"
#include "platform/SelfDrawn.h"
#include "platform/VirtualKeys.h"

namespace Wexa {

namespace {

constexpr int kMinimumWidth = 75;
constexpr DWORD kToggleStyle = BS_PUSHLIKE | BS_AUTOCHECKBOX;
constexpr DWORD kPictureAndAlignment = 0x380;

RGBColor Opaque(RGBColor color) {
  return {color.GetR(), color.GetG(), color.GetB()};
}
COLORREF Word(const SkinManagerColor& color) {
  return static_cast<COLORREF>(static_cast<unsigned long>(color));
}

}  // namespace

Button::impl::impl(Button* owner)
    : BaseImplMFC(owner), window_(std::make_shared<ButtonMFC<Button>>(*this)) {
  Creation().style |= WS_TABSTOP | BS_PUSHBUTTON;
}

Button::impl::impl(Button* owner, std::shared_ptr<CButton> native)
    : BaseImplMFC(owner), window_(std::move(native)) {
  if (HWND window = GetHandle()) AttachWindowProcedure(*owner, window);
}

Button::impl::~impl() = default;

bool Button::impl::CreateNative(CWnd* parent) {
  const DWORD style = Creation().style | NativeType();
  if (!window_ ||
      !window_->Create(Creation().text, style, ScaledRect(), parent, Creation().controlId))
    return false;
  if (keptCheck_) window_->SetCheck(BST_CHECKED);
  return true;
}

Size Button::impl::IdealSize() {
  CSize text = CaptionSize();
  CSize content = ContentSize(pictures_.Size(), text);
  SIZE padding = Theme::PushButtonPadding();
  int height = content.cy + 2 * padding.cy;
  if (text.cx == 0 && pictures_.normal) return {content.cx + 2 * padding.cy, height};
  return {std::max(content.cx + 2 * padding.cx, Scale(kMinimumWidth)), height};
}

void Button::impl::Show(bool show, bool updateLayout) {
  BaseImplMFC::Show(show, updateLayout);
  TellButtonBox();
}

void Button::impl::SetText(const std::wstring& text) {
  BaseImplMFC::SetText(text);
  TellButtonBox();
}

void Button::impl::TellButtonBox() {
  auto* parent = Owner() ? static_cast<BaseGUIObject*>(Owner()->GetParent()) : nullptr;
  if (parent && parent->Type() == GuiType::ButtonBox) ImplOf(parent)->InvalidateLayout();
}

// -- Toggle

DWORD Button::impl::NativeType() const {
  if (style_ != ButtonStyle::Native || hasBorders_) return BS_OWNERDRAW;
  return checkable_ ? kToggleStyle : BS_PUSHBUTTON;
}

void Button::impl::SetChecked(bool checked) {
  keptCheck_ = checked;
  if (!GetHandle()) {
    checkable_ = true;
    return;
  }
  if (!checkable_) MakeCheckable();
  window_->SetCheck(checked ? BST_CHECKED : BST_UNCHECKED);
  window_->Invalidate();
}

// A push button cannot become a check box in place: another window takes the place of its own.
void Button::impl::MakeCheckable() {
  CWnd& old = Window();
  CWnd* parent = old.GetParent();
  CRect rect = old.GetWindowRect();
  parent->ScreenToClient(&rect);
  auto next = std::make_shared<ButtonMFC<Button>>(*this);
  checkable_ = true;
  const DWORD style = (old.GetStyle() & ~BS_TYPEMASK) | NativeType();
  checkable_ =
      next->Create(old.GetWindowText(), style, rect, parent, static_cast<UINT>(old.GetDlgCtrlID()));
  if (!checkable_)
    throw WexaException("include/MFC/ButtonImplMFC", __LINE__, "SetChecked re-create error");
  next->SetFont(old.GetFont());
  next->SetWindowPos(old.GetSafeHwnd(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  ReplaceWindow(std::move(next));
}

// To its host the button is the same: it hears nothing of the change.
void Button::impl::ReplaceWindow(std::shared_ptr<CButton> next) {
  const auto old = std::exchange(window_, std::move(next));
  DetachWindowProcedure(*Owner(), old->GetSafeHwnd());
  if (GetFocus() == old->GetSafeHwnd()) window_->SetFocus();
  AttachWindowProcedure(*Owner(), GetHandle());
  SetMouseTracked(false);
  if (IsAcceptDrops()) SetAcceptDrops(true);
  old->DestroyWindow();
}

bool Button::impl::IsChecked() {
  return GetHandle() ? window_->GetCheck() == BST_CHECKED : keptCheck_;
}

void Button::impl::KeepState() {
  BaseImplMFC::KeepState();
  keptCheck_ = IsChecked();
}

void Button::impl::ReadForm(const FormReader& form) {
  isDefault_ = form.Flag(PropertyId::Default, false);
  checkable_ = form.Flag(L"checkable", false);
  keptCheck_ = checkable_ && form.Flag(L"checked", false);
}

// -- Style and colours

void Button::impl::SetStyle(ButtonStyle style) {
  style_ = style;
  if (style == ButtonStyle::Native) hasBorders_ = false;
  if (style != ButtonStyle::Native) Creation().style &= ~kPictureAndAlignment;
  if (GetHandle()) {
    if (style != ButtonStyle::Native) window_->ModifyStyle(kPictureAndAlignment, 0);
    window_->SetButtonStyle(NativeType());
  }
  if (style == ButtonStyle::IconOnly) InvalidateLayout();
}

void Button::impl::SetFaces(const std::array<RGBColor, 5>& faces) {
  faces_ = faces;
  GetSkinManager().SetColorChangeFlag(true);
}

void Button::impl::SetBorders(RGBColor normal, RGBColor hovered, RGBColor pressed) {
  if (!GetHandle()) return;
  window_->SetButtonStyle(BS_OWNERDRAW);
  bool keepsAlpha = style_ >= ButtonStyle::Flat;
  SkinManager& skin = GetSkinManager();
  skin.Slot(Slot::kButtonBorder) = Word(keepsAlpha ? normal : Opaque(normal));
  skin.Slot(Slot::kButtonHoverBorder) = Word(keepsAlpha ? hovered : Opaque(hovered));
  skin.Slot(Slot::kButtonAccent) = Word(keepsAlpha ? pressed : Opaque(pressed));
  hasBorders_ = true;
}

void Button::impl::SetTextColors(std::optional<RGBColor> normal, std::optional<RGBColor> disabled) {
  SkinManager& skin = GetSkinManager();
  if (normal) skin.Slot(Slot::kButtonText) = Word(*normal);
  if (disabled) skin.Slot(Slot::kButtonDisabledText) = Word(*disabled);
  if (GetHandle()) Repaint();
}

void Button::impl::FillPalette(ControlPalette& palette) {
  FillButtonPalette(palette, GetSkinManager());
  palette.radius = Scale(cornerRadius);
  if (!faces_) return;
  bool isChecked = checkable_ && IsChecked();
  palette.face = Word((*faces_)[isChecked ? 4 : 0]);
  palette.hoverFace = Word((*faces_)[1]);
  palette.pressedFace = Word((*faces_)[2]);
  palette.disabledFace = Word((*faces_)[3]);
}

// -- Painting and input

void Button::impl::RefineState(ControlState& state) {
  if (focusRectDisabled) state.focusCue = false;
}

void Button::impl::PaintOwnerDrawn() {
  CPaintDC dc(GetHandle());
  Painter painter(dc);
  const ControlPalette palette = GetControlPalette(GetHandle());
  const CRect client = window_->GetClientRect();
  ControlState look = GetControlState(GetHandle());
  look.pressed = look.pressed || (!faces_ && IsChecked());
  painter.FillRect(client, palette.background);
  Theme::DrawPushButton(painter, client, look, palette);
  COLORREF color =
      look.enabled ? (look.pressed ? palette.pressedText : palette.text) : palette.disabledText;
  PaintContent(painter, client, look, color);
}

// A button that the library draws has no native type that toggles by itself.
void Button::impl::OnClicked() {
  if (checkable_ && NativeType() == BS_OWNERDRAW) window_->SetCheck(!IsChecked());
  if (Owner()) static_cast<Button*>(Owner())->Clicked();
}

bool Button::impl::OnPreTranslate(const MSG& message) {
  bool isReturn = message.message == WM_KEYDOWN && message.wParam == VK_RETURN;
  if (!isReturn || style_ == ButtonStyle::Native) return false;
  OnClicked();
  return true;
}

}  // namespace Wexa
