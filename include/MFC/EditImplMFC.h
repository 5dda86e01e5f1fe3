#pragma once

#include <memory>
#include <string>

#include "Edit.h"
#include "MFC/BaseImplMFC.h"
#include "WexaConfig.h"

namespace Wexa {

class Edit::impl : public BaseImplMFC {
 public:
  explicit impl(Edit* owner);
  ~impl() override;

  CWnd* GetCWnd() override;
  Size IdealSize() override;
  Size MinimumIdealSize() override;
  void ReadForm(const FormReader& form) override;
  SizePolicy DefaultPolicy() const override { return {SizePolicy::Expanding, SizePolicy::Fixed}; }

  using BaseImplMFC::Text;
  void SetText(const std::wstring& text);
  void SetTextAlign(TextAlign align);
  void SetSelectAll();
  void SetLimitText(int limit);
  void SetReadOnly(bool readOnly);
  bool IsReadOnly();
  void SetPlaceHolderText(const std::wstring& text);
  void SetPasswordMode(PasswordMode mode);
  PasswordMode GetPasswordMode() const { return passwordMode_; }
  void SetFrameMode(bool frame);
  bool GetFrameMode() const { return frame_; }

  // A notification of the native edit (EN_ code).
  void OnNotify(int code);

 protected:
  bool CreateNative(CWnd* parent) override;
  void FillPalette(ControlPalette& palette) override;

 private:
  class EditMFC;

  void ChangeStyle(DWORD remove, DWORD add);
  Size SizeFor(int characters);

  std::unique_ptr<EditMFC> window_;
  std::wstring placeHolder_;
  PasswordMode passwordMode_ = PasswordMode::Normal;
  int limit_ = -1;
  bool frame_ = true;
  int radius_ = GetEditRadius();   // 96-DPI units
  bool changedByProgram_ = false;  // notifications are then not the user's
  bool isBeingMade_ = false;       // nor anybody's
};

}  // namespace Wexa
