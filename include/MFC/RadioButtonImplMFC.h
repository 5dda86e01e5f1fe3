#pragma once

#include <memory>
#include <string>

#include "MFC/BaseImplMFC.h"
#include "MFC/ButtonMFC.h"
#include "MFC/WidgetPictures.h"
#include "RadioButton.h"

namespace Wexa {

class RadioButton::impl : public BaseImplMFC {
 public:
  explicit impl(RadioButton* owner);

  CWnd* GetCWnd() override { return &window_; }
  Size IdealSize() override;
  Size MinimumIdealSize() override { return IdealSize(); }
  void KeepState() override;
  void ReadForm(const FormReader& form) override;
  SizePolicy DefaultPolicy() const override { return {SizePolicy::Minimum, SizePolicy::Fixed}; }

  using BaseImplMFC::SetText;
  using BaseImplMFC::Text;
  void SetCheck();
  bool IsChecked();
  void LoadPicture(const PictureRequest& request);
  void Rescale(const Rescaling& rescale) override;

  std::shared_ptr<GroupInfo> group;
  std::wstring groupName;  // of the form
  bool checkedByForm = false;

  // -- From the native button
  void OnClicked();
  bool OnPreTranslate(const MSG&) { return false; }
  bool IsOwnerDrawn() const { return pictures_.normal != nullptr; }
  void PaintOwnerDrawn();

 protected:
  bool CreateNative(CWnd* parent) override;
  void FillPalette(ControlPalette& palette) override;

 private:
  unsigned CheckedIdOfGroup();

  ButtonMFC<RadioButton> window_;
  WidgetPictures pictures_;
};

}  // namespace Wexa
