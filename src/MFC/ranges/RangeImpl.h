#pragma once

#include "MFC/DrawnImpl.h"
#include "MFC/ranges/RangeWnd.h"
#include "RangeControl.h"

namespace Wexa {

// Sliders and scroll bars: the window keeps the value, also before it is created.
class RangeControl::impl : public DrawnImpl {
 public:
  impl(RangeControl* owner, std::shared_ptr<RangeWnd> window);

  RangeWnd& Bar() { return static_cast<RangeWnd&>(Shown()); }
  Size IdealSize() override { return Turned(LyingIdealSize()); }
  Size MinimumIdealSize() override { return Turned(LyingMinimumSize()); }
  void ReadForm(const FormReader& form) override;

 protected:
  bool CreateNative(CWnd* parent) override;
  virtual bool IsVertical() const = 0;
  // Of a horizontal bar.
  virtual Size LyingIdealSize() const = 0;
  virtual Size LyingMinimumSize() const = 0;

 private:
  Size Turned(Size size) const;
};

}  // namespace Wexa
