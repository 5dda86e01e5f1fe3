#pragma once

#include "MFC/containers/PagesImpl.h"
#include "StackedDialog.h"

namespace Wexa {

class StackedDialog::impl : public PagesImpl {
 public:
  using PagesImpl::PagesImpl;

  void ReadForm(const FormReader& form) override;
  void TakeChild(BaseGUIObject& child, const FormReader& form) override;
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
  void InvalidateInParent();

 protected:
  RECT PageMargins() const override { return {Border(), Border(), Border(), Border()}; }

 private:
  int Border() const;

  bool isFramed_ = false;
};

}  // namespace Wexa
