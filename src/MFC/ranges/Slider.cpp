#include "Slider.h"

#include <algorithm>

#include "MFC/base/WidgetColors.h"
#include "MFC/ranges/RangeImpl.h"
#include "MFC/ranges/SliderWnd.h"
#include "platform/ControlConstants.h"

namespace Wexa {

namespace {

constexpr int kSliderLength = 100;
constexpr int kSmallestSlider = 48;
constexpr int kTrackThickness = 24;

class SliderImpl : public RangeControl::impl {
 public:
  explicit SliderImpl(RangeControl* owner) : impl(owner, std::make_shared<SliderWnd>()) {}

  void FillPalette(ControlPalette& palette) override {
    FillInputPalette(palette, GetSkinManager());
  }

 protected:
  bool IsVertical() const override { return (Creation().style & TBS_VERT) != 0; }
  Size LyingIdealSize() const override { return Scale(kSliderLength, kTrackThickness); }
  Size LyingMinimumSize() const override { return Scale(kSmallestSlider, kTrackThickness); }
};

SliderWnd& WindowOf(RangeControl::impl& impl) {
  return static_cast<SliderWnd&>(impl.Bar());
}

}  // namespace

Slider::Slider()
    : RangeControl(GuiType::Slider, [](RangeControl* owner) -> std::shared_ptr<impl> {
        return std::make_shared<SliderImpl>(owner);
      }) {}

void Slider::SetTickInterval(int interval) {
  WindowOf(*impl_).tickInterval = std::max(interval, 0);
  impl_->RefreshSkinColors();
}
int Slider::GetTickInterval() const {
  return WindowOf(*impl_).tickInterval;
}

}  // namespace Wexa
