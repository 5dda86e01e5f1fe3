#include "Slider.h"

#include <algorithm>

#include "MFC/base/WidgetColors.h"
#include "MFC/ranges/RangeImpl.h"
#include "MFC/ranges/SliderWnd.h"
#include "form/FormReader.h"
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

  void ReadForm(const FormReader& form) override {
    impl::ReadForm(form);
    if (form.IsVertical()) Creation().style |= TBS_VERT;
    if (form.Find(L"tickPosition") && !form.Has(L"tickPosition", L"QSlider::NoTicks"))
      SetTickInterval(form.Integer(L"tickInterval", Bar().Range().PageStep()));
  }
  SizePolicy DefaultPolicy() const override { return {SizePolicy::Expanding, SizePolicy::Fixed}; }

  SliderWnd& SliderWindow() { return static_cast<SliderWnd&>(Bar()); }
  void SetTickInterval(int interval) {
    SliderWindow().tickInterval = std::max(interval, 0);
    RefreshSkinColors();
  }

 protected:
  bool IsVertical() const override { return (Creation().style & TBS_VERT) != 0; }
  Size LyingIdealSize() const override { return Scale(kSliderLength, kTrackThickness); }
  Size LyingMinimumSize() const override { return Scale(kSmallestSlider, kTrackThickness); }
};

SliderImpl& SliderImplOf(RangeControl::impl& impl) {
  return static_cast<SliderImpl&>(impl);
}

}  // namespace

Slider::Slider()
    : RangeControl(GuiType::Slider, [](RangeControl* owner) -> std::shared_ptr<impl> {
        return std::make_shared<SliderImpl>(owner);
      }) {}

void Slider::SetTickInterval(int interval) {
  SliderImplOf(*impl_).SetTickInterval(interval);
}
int Slider::GetTickInterval() const {
  return SliderImplOf(*impl_).SliderWindow().tickInterval;
}

}  // namespace Wexa
