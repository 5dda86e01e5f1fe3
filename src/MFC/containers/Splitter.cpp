#include "Splitter.h"

#include "MFC/containers/SplitterImpl.h"

namespace Wexa {

Splitter::Splitter() : BaseGUIObject(GuiType::Splitter), impl_(std::make_shared<impl>(this)) {}
Splitter::~Splitter() {
  ReleaseImpl();
}

bool Splitter::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> Splitter::GetBaseImpl() const {
  return impl_;
}
Size Splitter::IdealSize() {
  return impl_->IdealSize();
}
void Splitter::SetOrientation(bool vertical) {
  const auto held = impl_;  // a view that moves may have the splitter destroyed; so below
  held->SetOrientation(vertical);
}
void Splitter::AddView(BaseGUIObject* view) {
  const auto held = impl_;
  held->AddView(view);
}
std::vector<BaseGUIObject*> Splitter::GetViews() {
  return impl_->Views();
}
void Splitter::SetDynamicResizing(bool dynamic) {
  impl_->isDynamic = dynamic;
}
bool Splitter::DynamicResizing() const {
  return impl_->isDynamic;
}
void Splitter::SetHandleWidth(int width) {
  const auto held = impl_;
  held->SetHandleWidth(width);
}
int Splitter::GetHandleWidth() const {
  return impl_->HandleWidth();
}
void Splitter::SetSizes(const std::list<int>& sizes) {
  const auto held = impl_;
  held->GiveSizes(sizes);
}

}  // namespace Wexa
