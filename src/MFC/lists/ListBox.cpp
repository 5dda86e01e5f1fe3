#include "ListBox.h"

#include "MFC/FieldImpl.h"
#include "form/FormReader.h"
#include "platform/ControlConstants.h"

namespace Wexa {

class ListBox::impl : public TextAreaImpl {
 public:
  using TextAreaImpl::TextAreaImpl;

  void ReadForm(const FormReader& form) override {
    lines = form.Node().itemTexts;
    if (form.Flag(PropertyId::SortingEnabled, false)) Creation().style |= LVS_SORTASCENDING;
  }
};

ListBox::ListBox() : BaseGUIObject(GuiType::ListBox), impl_(std::make_shared<impl>(this)) {}
ListBox::~ListBox() {
  ReleaseImpl();
}

bool ListBox::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> ListBox::GetBaseImpl() const {
  return impl_;
}
Size ListBox::IdealSize() {
  return impl_->IdealSize();
}
void ListBox::SetItems(std::vector<std::wstring> items) {
  impl_->lines = std::move(items);
  if (GetPlatformHandle()) Repaint();
}

}  // namespace Wexa
