#include "SpinEdit.h"

#include "MFC/SpinFieldImpl.h"
#include "form/FormReader.h"

namespace Wexa {

class SpinEdit::impl : public SpinFieldImpl {
 public:
  explicit impl(SpinEdit* owner) : SpinFieldImpl(owner) { decimals = 0; }

  void ReadForm(const FormReader& form) override {
    const FormReader::Range range = form.RangeOr(0, 99);
    SetRange(range.minimum, range.maximum);
    SetValue(range.value);
    ReadFixes(form);
  }
};

SpinEdit::SpinEdit() : BaseGUIObject(GuiType::SpinEdit), impl_(std::make_shared<impl>(this)) {}
SpinEdit::~SpinEdit() {
  ReleaseImpl();
}

bool SpinEdit::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> SpinEdit::GetBaseImpl() const {
  return impl_;
}
Size SpinEdit::IdealSize() {
  return impl_->IdealSize();
}
void SpinEdit::SetRange(int minimum, int maximum) {
  impl_->SetRange(minimum, maximum);
}
void SpinEdit::SetValue(int value) {
  impl_->SetValue(value);
}
int SpinEdit::GetValue() const {
  return static_cast<int>(impl_->GetValue());
}
void SpinEdit::SetPrefix(const std::wstring& prefix) {
  impl_->SetPrefix(prefix);
}
void SpinEdit::SetSuffix(const std::wstring& suffix) {
  impl_->SetSuffix(suffix);
}

}  // namespace Wexa
