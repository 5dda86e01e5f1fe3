#include "Button.h"

#include "MFC/ButtonImplMFC.h"

namespace Wexa {

Button::Button() : BaseGUIObject(GuiType::Button), impl_(std::make_shared<impl>(this)) {}

Button::Button(std::shared_ptr<CButton> native)
    : BaseGUIObject(GuiType::Button), impl_(std::make_shared<impl>(this, std::move(native))) {}

Button::~Button() {
  ReleaseImpl();
}

bool Button::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> Button::GetBaseImpl() const {
  return impl_;
}
Size Button::IdealSize() {
  return impl_->IdealSize();
}

void Button::SetChecked(bool checked) {
  impl_->SetChecked(checked);
}
bool Button::GetCheck() {
  return impl_->IsChecked();
}

void Button::LoadPicture(const unsigned char* data, int size, WexaUtils::ImageTypes type,
                         WexaUtils::ScalePicture scale, int iconSize, bool redraw) {
  impl_->LoadPicture({data, size, type, scale, iconSize}, redraw);
}
void Button::LoadPicture(const std::wstring& path, WexaUtils::ScalePicture scale, int iconSize,
                         bool redraw) {
  const PictureFile file(path);
  LoadPicture(file.bytes.get(), file.size, file.type, scale, iconSize, redraw);
}
void Button::LoadPictureDisabled(const unsigned char* data, int size, WexaUtils::ImageTypes type,
                                 WexaUtils::ScalePicture scale, int iconSize, bool redraw) {
  impl_->LoadPictureDisabled({data, size, type, scale, iconSize}, redraw);
}
void Button::LoadPictureDisabled(const std::wstring& path, WexaUtils::ScalePicture scale,
                                 int iconSize, bool redraw) {
  const PictureFile file(path);
  LoadPictureDisabled(file.bytes.get(), file.size, file.type, scale, iconSize, redraw);
}
void Button::GeneratePictureDisabled(bool redraw) {
  impl_->GeneratePictureDisabled(redraw);
}

void Button::SetStyle(ButtonStyle style) {
  impl_->SetStyle(style);
}
void Button::UseTextAndIcon(ButtonStyle style) {
  SetStyle(style);
}
Button::ButtonStyle Button::GetStyle() {
  return impl_->GetStyle();
}
void Button::SetTextColor(int color) {
  impl_->SetTextColors(RGBColor(color), std::nullopt);
}

void Button::SetText(const std::wstring& text) {
  impl_->SetText(text);
}
std::wstring Button::GetText() {
  return impl_->GetText();
}
void Button::SetFont(FontData& font) {
  impl_->SetFont(font);
}
FontData Button::GetFont() {
  return impl_->NativeFont();
}

void Button::SetBackgroundColor(RGBColor normal, RGBColor hovered, RGBColor pressed,
                                RGBColor disabled, RGBColor checked) {
  impl_->SetFaces({normal, hovered, pressed, disabled, checked});
}

void Button::SetBackgroundColor(unsigned int color, bool redraw) {
  RGBColor face(static_cast<int>(color));
  impl_->SetFaces({face, face, face, face, face});
  if (redraw && GetPlatformHandle()) Repaint();
}

void Button::SetBorderColor(RGBColor normal, RGBColor hovered, RGBColor pressed) {
  impl_->SetBorders(normal, hovered, pressed);
}

void Button::SetTextColor(RGBColor normal, RGBColor disabled) {
  impl_->SetTextColors(normal, disabled);
}

void Button::Use3dStyle() {
  SetStyle(ButtonStyle::Raised);
}
void Button::DisableFocusRect(bool disable) {
  impl_->focusRectDisabled = disable;
  impl_->RefreshSkinColors();
}
bool Button::IsDisableFocusRect() {
  return impl_->focusRectDisabled;
}
void Button::SetRoundedButtonCornerRadius(int radius) {
  impl_->cornerRadius = radius;
  impl_->RefreshSkinColors();
}
int Button::GetRoundedButtonCornerRadius() {
  return impl_->cornerRadius;
}

}  // namespace Wexa
