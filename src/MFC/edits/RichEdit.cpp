#include "RichEdit.h"

#include "MFC/FieldImpl.h"

namespace Wexa {

class RichEdit::impl : public TextAreaImpl {
 public:
  explicit impl(RichEdit* owner) : TextAreaImpl(owner) { wraps = true; }
  void ReadForm(const FormReader& form) override { ReadText(form); }
};

RichEdit::RichEdit() : BaseGUIObject(GuiType::RichEdit), impl_(std::make_shared<impl>(this)) {}
RichEdit::~RichEdit() {
  ReleaseImpl();
}

bool RichEdit::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> RichEdit::GetBaseImpl() const {
  return impl_;
}
Size RichEdit::IdealSize() {
  return impl_->IdealSize();
}
void RichEdit::SetText(const std::wstring& text) {
  impl_->lines = {text};
  if (GetPlatformHandle()) Repaint();
}
std::wstring RichEdit::GetText() const {
  return impl_->lines.empty() ? L"" : impl_->lines.front();
}

}  // namespace Wexa
