#pragma once

#include <array>
#include <memory>
#include <optional>

#include "Button.h"
#include "MFC/BaseImplMFC.h"
#include "MFC/ButtonMFC.h"
#include "MFC/WidgetPictures.h"

namespace Wexa {

class Button::impl : public BaseImplMFC {
 public:
  explicit impl(Button* owner);
  impl(Button* owner, std::shared_ptr<CButton> native);
  ~impl() override;

  CWnd* GetCWnd() override { return window_.get(); }
  Size IdealSize() override;
  Size MinimumIdealSize() override { return IdealSize(); }
  void Show(bool show, bool updateLayout) override;
  void RefineState(ControlState& state) override;
  void Rescale(const Rescaling& rescale) override;
  void KeepState() override;
  void ReadForm(const FormReader& form) override;
  SizePolicy DefaultPolicy() const override { return {SizePolicy::Minimum, SizePolicy::Fixed}; }

  void SetText(const std::wstring& text);
  std::wstring GetText() { return Text(); }
  void SetChecked(bool checked);
  bool IsChecked();
  void LoadPicture(const PictureRequest& request, bool redraw);
  void LoadPictureDisabled(const PictureRequest& request, bool redraw);
  void GeneratePictureDisabled(bool redraw);
  void SetStyle(ButtonStyle style);
  ButtonStyle GetStyle() const { return style_; }
  void SetFaces(const std::array<RGBColor, 5>& faces);
  void SetBorders(RGBColor normal, RGBColor hovered, RGBColor pressed);
  void SetTextColors(std::optional<RGBColor> normal, std::optional<RGBColor> disabled);

  // The dialog's default button, as its form says.
  bool IsDefault() const { return isDefault_; }
  // What changes the look of the button; RefreshSkinColors shows it.
  bool focusRectDisabled = false;
  int cornerRadius = 0;  // 96-DPI units

  // -- From the native button
  void OnClicked();
  bool OnPreTranslate(const MSG& message);
  bool IsOwnerDrawn() const {
    return style_ != ButtonStyle::Native || hasBorders_ || pictures_.normal;
  }
  void PaintOwnerDrawn();

 protected:
  bool CreateNative(CWnd* parent) override;
  void FillPalette(ControlPalette& palette) override;

 private:
  // The native type and push-like look that style and toggling ask for.
  DWORD NativeType() const;
  void MakeCheckable();
  void ReplaceWindow(std::shared_ptr<CButton> next);
  void TellButtonBox();
  // The text that stands on the button, which a picture may replace.
  std::wstring Caption();
  CSize CaptionSize();
  void ReplacePicture(UniqueBitmap& picture, const PictureRequest& request, bool redraw);
  void PaintContent(Painter& painter, const CRect& client, const ControlState& look,
                    COLORREF color);

  std::shared_ptr<CButton> window_;
  ButtonStyle style_ = ButtonStyle::Native;
  bool isDefault_ = false;
  bool checkable_ = false;
  bool keptCheck_ = false;  // while there is no window
  bool hasBorders_ = false;
  WidgetPictures pictures_;
  std::optional<std::array<RGBColor, 5>> faces_;  // normal, hovered, pressed, disabled, checked
};

}  // namespace Wexa
