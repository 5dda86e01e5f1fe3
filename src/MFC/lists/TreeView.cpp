#include "TreeView.h"

#include "MFC/FieldImpl.h"

namespace Wexa {

class TreeView::impl : public TextAreaImpl {
 public:
  using TextAreaImpl::TextAreaImpl;
};

TreeView::TreeView() : BaseGUIObject(GuiType::TreeView), impl_(std::make_shared<impl>(this)) {}
TreeView::~TreeView() {
  ReleaseImpl();
}

bool TreeView::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> TreeView::GetBaseImpl() const {
  return impl_;
}
Size TreeView::IdealSize() {
  return impl_->IdealSize();
}

}  // namespace Wexa
