#pragma once

#include "MFC/InteractiveImpl.h"
#include "MFC/RangeWnd.h"
#include "RangeControl.h"

namespace Wexa {

// Sliders and scroll bars: the window keeps the value, also before it is created.
class RangeControl::impl : public InteractiveImpl {
 public:
  impl(RangeControl* owner, std::shared_ptr<RangeWnd> window);

  RangeWnd& Bar() { return static_cast<RangeWnd&>(Shown()); }
  Size IdealSize() override { return Turned(ideal_); }
  Size MinimumIdealSize() override { return Turned(minimum_); }

 protected:
  bool CreateNative(CWnd* parent) override;
  virtual bool IsVertical() const = 0;
  // As for a horizontal bar.
  void SetSizes(Size ideal, Size minimum);

 private:
  Size Turned(Size size) const;

  Size ideal_;
  Size minimum_;
};

}  // namespace Wexa
