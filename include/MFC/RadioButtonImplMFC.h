#pragma once

#include <memory>
#include <string>
#include <vector>

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

  // The name of its button group in the form; empty when it has none.
  const std::wstring& GroupName() const { return groupName_; }
  const std::shared_ptr<GroupInfo>& Group() const { return group_; }
  void SetGroup(const std::shared_ptr<GroupInfo>& group, const std::shared_ptr<BaseImpl>& self);

  // -- From the native button
  void OnClicked();
  bool OnPreTranslate(const MSG&) { return false; }
  bool IsOwnerDrawn() const { return pictures_.normal != nullptr; }
  void PaintOwnerDrawn();

 protected:
  bool CreateNative(CWnd* parent) override;
  void FillPalette(ControlPalette& palette) override;

 private:
  std::vector<impl*> Members() const;
  unsigned ControlId();
  unsigned CheckedIdOfGroup();
  void PutCheck(bool checked);
  void CheckAlone();

  ButtonMFC<RadioButton> window_;
  WidgetPictures pictures_;
  std::shared_ptr<GroupInfo> group_;
  std::wstring groupName_;
  bool keptCheck_ = false;  // while there is no window
};

}  // namespace Wexa
