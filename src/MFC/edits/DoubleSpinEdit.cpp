#include "DoubleSpinEdit.h"

#include "MFC/SpinFieldImpl.h"
#include "form/FormReader.h"

namespace Wexa {

class DoubleSpinEdit::impl : public SpinFieldImpl {
 public:
  explicit impl(DoubleSpinEdit* owner) : SpinFieldImpl(owner) { decimals = 2; }

  void ReadForm(const FormReader& form) override {
    SetDecimals(form.Integer(L"decimals", decimals));
    SetRange(form.Number(PropertyId::Minimum, 0), form.Number(PropertyId::Maximum, 99.99));
    SetValue(form.Number(PropertyId::Value, 0));
    ReadFixes(form);
  }
};

DoubleSpinEdit::DoubleSpinEdit()
    : BaseGUIObject(GuiType::DoubleSpinEdit), impl_(std::make_shared<impl>(this)) {}
DoubleSpinEdit::~DoubleSpinEdit() {
  ReleaseImpl();
}

bool DoubleSpinEdit::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> DoubleSpinEdit::GetBaseImpl() const {
  return impl_;
}
Size DoubleSpinEdit::IdealSize() {
  return impl_->IdealSize();
}
void DoubleSpinEdit::SetRange(double minimum, double maximum) {
  impl_->SetRange(minimum, maximum);
}
void DoubleSpinEdit::SetValue(double value) {
  impl_->SetValue(value);
}
double DoubleSpinEdit::GetValue() const {
  return impl_->GetValue();
}
void DoubleSpinEdit::SetPrefix(const std::wstring& prefix) {
  impl_->SetPrefix(prefix);
}
void DoubleSpinEdit::SetSuffix(const std::wstring& suffix) {
  impl_->SetSuffix(suffix);
}
void DoubleSpinEdit::SetDecimals(int decimals) {
  impl_->SetDecimals(decimals);
}

}  // namespace Wexa
