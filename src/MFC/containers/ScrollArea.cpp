#include "ScrollArea.h"

#include "MFC/containers/ScrollAreaImpl.h"

namespace Wexa {

ScrollArea::ScrollArea()
    : BaseGUIObject(GuiType::ScrollArea), impl_(std::make_shared<impl>(this)) {}
ScrollArea::~ScrollArea() {
  ReleaseImpl();
}

bool ScrollArea::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> ScrollArea::GetBaseImpl() const {
  return impl_;
}
Size ScrollArea::IdealSize() {
  return impl_->IdealSize();
}
void ScrollArea::SetContent(BaseGUIObject* content) {
  const auto held = impl_;  // content that moves may have the area destroyed
  held->SetContent(content);
}

}  // namespace Wexa
