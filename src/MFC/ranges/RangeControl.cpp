#include "RangeControl.h"

#include "MFC/ranges/RangeImpl.h"
#include "form/FormReader.h"

namespace Wexa {

// -- Implementation -----------------------------------------------------------

RangeControl::impl::impl(RangeControl* owner, std::shared_ptr<RangeWnd> window)
    : DrawnImpl(owner, std::move(window)) {
  Creation().style |= WS_TABSTOP;
  Bar().onChanged = [this](int value) {
    if (Owner()) static_cast<RangeControl*>(Owner())->ValueChanged(value);
  };
  Bar().onTracked = [this](int value) {
    if (Owner()) static_cast<RangeControl*>(Owner())->SliderMoved(value);
  };
}

bool RangeControl::impl::CreateNative(CWnd* parent) {
  Bar().vertical = IsVertical();
  return DrawnImpl::CreateNative(parent);
}

void RangeControl::impl::ReadForm(const FormReader& form) {
  const FormReader::Range range = form.RangeOr(0, 99);
  Bar().SetRange(range.minimum, range.maximum);
  Bar().SetValue(range.value);
  const ValueRange& steps = Bar().Range();
  Bar().SetSteps(form.Integer(L"singleStep", steps.SingleStep()),
                 form.Integer(L"pageStep", steps.PageStep()));
}

Size RangeControl::impl::Turned(Size size) const {
  return IsVertical() ? Size(size.Height(), size.Width()) : size;
}

// -- Facade -------------------------------------------------------------------

RangeControl::RangeControl(GuiType type, std::shared_ptr<impl> (*make)(RangeControl*))
    : BaseGUIObject(type), impl_(make(this)) {}
RangeControl::~RangeControl() {
  ReleaseImpl();
}

bool RangeControl::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> RangeControl::GetBaseImpl() const {
  return impl_;
}
Size RangeControl::IdealSize() {
  return impl_->IdealSize();
}

void RangeControl::SetRange(int minimum, int maximum) {
  const auto held = impl_;  // a handler may destroy the widget
  held->Bar().SetRange(minimum, maximum);
}
int RangeControl::GetMinimum() const {
  return impl_->Bar().Range().Minimum();
}
int RangeControl::GetMaximum() const {
  return impl_->Bar().Range().Maximum();
}
void RangeControl::SetValue(int value) {
  const auto held = impl_;
  held->Bar().SetValue(value);
}
int RangeControl::GetValue() const {
  return impl_->Bar().Range().Value();
}
void RangeControl::SetSingleStep(int step) {
  impl_->Bar().SetSteps(step, GetPageStep());
}
void RangeControl::SetPageStep(int step) {
  impl_->Bar().SetSteps(GetSingleStep(), step);
}
int RangeControl::GetSingleStep() const {
  return impl_->Bar().Range().SingleStep();
}
int RangeControl::GetPageStep() const {
  return impl_->Bar().Range().PageStep();
}

}  // namespace Wexa
