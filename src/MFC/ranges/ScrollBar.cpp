#include "ScrollBar.h"

#include "MFC/ranges/RangeImpl.h"
#include "MFC/ranges/ScrollBarWnd.h"
#include "form/FormReader.h"
#include "platform/ControlConstants.h"

namespace Wexa {

namespace {

constexpr int kIdealLength = 100;
constexpr int kSmallestLength = 40;

class ScrollBarImpl : public RangeControl::impl {
 public:
  explicit ScrollBarImpl(RangeControl* owner) : impl(owner, std::make_shared<ScrollBarWnd>()) {}

  void FillPalette(ControlPalette& palette) override {
    FillScrollPalette(palette, GetSkinManager());
  }

  void ReadForm(const FormReader& form) override {
    impl::ReadForm(form);
    if (form.IsVertical()) Creation().style |= SBS_VERT;
  }
  SizePolicy DefaultPolicy() const override { return {SizePolicy::Minimum, SizePolicy::Fixed}; }

 protected:
  bool IsVertical() const override { return (Creation().style & SBS_VERT) != 0; }
  Size LyingIdealSize() const override { return {Scale(kIdealLength), Theme::ScrollBarWidth()}; }
  Size LyingMinimumSize() const override {
    return {Scale(kSmallestLength), Theme::ScrollBarWidth()};
  }
};

}  // namespace

ScrollBar::ScrollBar()
    : RangeControl(GuiType::ScrollBar, [](RangeControl* owner) -> std::shared_ptr<impl> {
        return std::make_shared<ScrollBarImpl>(owner);
      }) {}

}  // namespace Wexa
