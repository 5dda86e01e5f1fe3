#pragma once

#include <map>
#include <memory>

#include "ButtonBox.h"
#include "MFC/ContainerImpl.h"

namespace Wexa {

class ButtonBox::impl : public ContainerImpl {
 public:
  explicit impl(ButtonBox* owner);
  ~impl() override;

  void ReadForm(const FormReader& form) override;
  SizePolicy DefaultPolicy() const override { return {SizePolicy::Expanding, SizePolicy::Fixed}; }
  // Replaces the buttons. Nothing happens once the native window exists.
  void SetButtons(unsigned standardButtons);
  void SetOrientation(bool vertical);
  std::shared_ptr<Button> GetButton(StandardButton button) const;

 protected:
  bool CreateNative(CWnd* parent) override;

 private:
  std::shared_ptr<Button> MakeButton(const wchar_t* text);
  void Arrange();

  std::map<StandardButton, std::shared_ptr<Button>> buttons_;
  bool isVertical_ = false;
};

}  // namespace Wexa
