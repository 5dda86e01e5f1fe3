#include "Dialog.h"

#include "MFC/DialogImplMFC.h"
#include "MFC/base/WidgetColors.h"
#include "MFC/tips/ToolTips.h"
#include "platform/Classes.h"

namespace Wexa {

namespace {

constexpr unsigned long kDefaultStyle = 0x10CC0000;

}  // namespace

Dialog::Dialog()
    : BaseGUIObject(GuiType::Dialog),
      impl_(std::make_shared<impl>(this, static_cast<DWORD>(kDefaultStyle), nullptr)) {}

Dialog::Dialog(const std::wstring& uiFile, HWND parent, unsigned long style, double scale)
    : BaseGUIObject(GuiType::Dialog), scale_(scale), uiFile_(uiFile) {
  SetParentWindow(parent);
  impl_ = std::make_shared<impl>(this, static_cast<DWORD>(style ? style : kDefaultStyle),
                                 CWnd::FromHandle(parent));
  impl_->Build(uiFile);
}

Dialog::~Dialog() {
  ReleaseImpl();
}

unsigned long Dialog::GetDefaultDialogStyle() {
  return kDefaultStyle;
}

bool Dialog::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> Dialog::GetBaseImpl() const {
  return impl_;
}

int Dialog::DoModal() {
  modal_ = true;
  const auto held = impl_;  // a handler may destroy the dialog
  return held->Life().ShowModal();
}

void Dialog::DoModeless(CWnd* parent, bool show) {
  modal_ = false;
  const auto held = impl_;
  held->Life().ShowModeless(parent, show);
}

void Dialog::DoModeless(bool show) {
  DoModeless(CWnd::FromHandle(GetParentWindow()), show);
}

void Dialog::Done(DoneState state) {
  const auto held = impl_;
  held->Life().End(state);
}

std::shared_ptr<BaseGUIObject> Dialog::GetElementByName(const std::wstring& name) {
  return impl_ ? impl_->Elements().Find(name) : nullptr;
}

BaseGUIObject* Dialog::GetFocusedCtrlPtr() {
  return impl_->Elements().Focused();
}

void Dialog::SetFocusToCtrl(BaseGUIObject* widget) {
  HWND window = widget ? widget->GetPlatformHandle() : nullptr;
  if (window) ::SetFocus(window);
}

void Dialog::SetDefaultButton(Button* button) {
  impl_->Input().SetDefaultButton(button);
}

void Dialog::SetToolTip(const std::shared_ptr<BaseGUIObject>& widget, const std::wstring& title,
                        const std::wstring& text, int id, CRect* area) {
  impl_->Tips().Set(widget, {title, text}, id, area);
}

void Dialog::SetWindowTitle(const std::wstring& title) {
  if (CWnd* window = GetWndPtr()) window->SetWindowText(title);
}

void Dialog::SetBackgroundColor(int color) {
  GetSkinManager().Slot(Slot::kDialogFace) = static_cast<unsigned long>(SwapRedAndBlue(color));
  if (GetHandle()) UpdateWindow();
}

int Dialog::GetBackgroundColor() {
  return static_cast<int>(SwapRedAndBlue(static_cast<int>(impl_->BackgroundColor())));
}

void Dialog::SetSkinManager(const SkinManager& skin, bool update) {
  impl_->SetCustomSkin(skin, update);
}

bool Dialog::SetSkinMode(SkinMode mode, bool repaint) {
  return impl_->SetSkinMode(mode, repaint);
}

void Dialog::UpdateWindow() {
  if (CWnd* window = GetWndPtr())
    window->RedrawWindow(nullptr, nullptr,
                         RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void Dialog::SetCursorType(WexaUtils::CursorTypes type) {
  impl_->Cursor().SetType(type);
}

bool Dialog::LoadCustomCursor(const std::wstring& path, int hotSpotX, int hotSpotY) {
  int size = 0;
  const std::unique_ptr<unsigned char[]> bytes(WexaUtils::LoadImageBuffer(path, &size));
  return LoadCustomCursor(bytes.get(), size, hotSpotX, hotSpotY, WexaUtils::PNG);
}

bool Dialog::LoadCustomCursor(const unsigned char* data, int size, int hotSpotX, int hotSpotY,
                              WexaUtils::ImageTypes type) {
  if (!data || size < 1 || type != WexaUtils::PNG) return false;
  return impl_->Cursor().Load({data, static_cast<std::size_t>(size)}, {hotSpotX, hotSpotY});
}

HWND Dialog::GetHandle() const {
  return impl_ ? impl_->GetHandle() : nullptr;
}
CWnd* Dialog::GetWndPtr() const {
  return GetHandle() ? impl_->GetCWnd() : nullptr;
}

bool Dialog::CreateTabWindow(CWnd* window, bool show) {
  return window && impl_->Pages().Embed(window->GetSafeHwnd(), show);
}

bool Dialog::CreateTabWindowEx(BaseGUIObject* widget, bool show) {
  return widget && impl_->Pages().Embed(widget->GetPlatformHandle(), show);
}

void Dialog::ShowButKeepHiddenChildren(bool show) {
  Show(show, false);
}

}  // namespace Wexa
