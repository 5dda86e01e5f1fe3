#include "MultiLineEdit.h"

#include "MFC/FieldImpl.h"

namespace Wexa {

class MultiLineEdit::impl : public TextAreaImpl {
 public:
  explicit impl(MultiLineEdit* owner) : TextAreaImpl(owner) { wraps = true; }
  void ReadForm(const FormReader& form) override { ReadText(form); }
};

MultiLineEdit::MultiLineEdit()
    : BaseGUIObject(GuiType::MultiLineEdit), impl_(std::make_shared<impl>(this)) {}
MultiLineEdit::~MultiLineEdit() {
  ReleaseImpl();
}

bool MultiLineEdit::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> MultiLineEdit::GetBaseImpl() const {
  return impl_;
}
Size MultiLineEdit::IdealSize() {
  return impl_->IdealSize();
}
void MultiLineEdit::SetText(const std::wstring& text) {
  impl_->lines = {text};
  if (GetPlatformHandle()) Repaint();
}
std::wstring MultiLineEdit::GetText() const {
  return impl_->lines.empty() ? L"" : impl_->lines.front();
}

}  // namespace Wexa
