#pragma once

#include "CheckBox.h"
#include "MFC/BaseImplMFC.h"
#include "MFC/ButtonMFC.h"

namespace Wexa {

class CheckBox::impl : public BaseImplMFC {
 public:
  explicit impl(CheckBox* owner);

  CWnd* GetCWnd() override { return &window_; }
  Size IdealSize() override;
  Size MinimumIdealSize() override { return IdealSize(); }
  void KeepState() override;
  void ReadForm(const FormReader& form) override;
  SizePolicy DefaultPolicy() const override { return {SizePolicy::Minimum, SizePolicy::Fixed}; }

  using BaseImplMFC::SetText;
  using BaseImplMFC::Text;
  void SetCheck(int state);
  int GetCheck();
  void SetTristate(bool tristate);

  // 96-DPI units; the configuration's at first.
  void SetBorderRadius(int radius);
  int GetBorderRadius() const { return borderRadius_; }

  // -- From the native button
  void OnClicked();
  bool OnPreTranslate(const MSG&) { return false; }
  bool IsOwnerDrawn() const { return false; }
  void PaintOwnerDrawn() {}

 protected:
  bool CreateNative(CWnd* parent) override;
  void FillPalette(ControlPalette& palette) override;

 private:
  ButtonMFC<CheckBox> window_;
  int initialCheck_ = 0;
  int borderRadius_;
};

}  // namespace Wexa
