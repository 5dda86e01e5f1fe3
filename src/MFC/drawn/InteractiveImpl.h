#pragma once

#include "MFC/BaseImplMFC.h"
#include "MFC/drawn/InteractiveWnd.h"

namespace Wexa {

// Implementations whose window is an InteractiveWnd.
class InteractiveImpl : public BaseImplMFC {
 public:
  InteractiveImpl(BaseGUIObject* owner, std::shared_ptr<InteractiveWnd> window)
      : BaseImplMFC(owner), window_(std::move(window)) {}

  CWnd* GetCWnd() override { return window_.get(); }
  InteractiveWnd& Shown() { return *window_; }

 protected:
  bool CreateNative(CWnd* parent) override {
    return window_->Create(Creation().text, Creation().style, ScaledRect(), parent,
                           Creation().controlId, Creation().exStyle);
  }

 private:
  std::shared_ptr<InteractiveWnd> window_;
};

}  // namespace Wexa
