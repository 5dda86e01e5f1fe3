#include "MFC/ContainerImpl.h"

#include "BaseGUIObject.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

ContainerImpl::ContainerImpl(BaseGUIObject* owner) : PaintedImpl(owner) {
  Creation().exStyle |= WS_EX_CONTROLPARENT;
}

void ContainerImpl::Enable(bool enable, bool remember) {
  const bool before = Window().IsWindowEnabled();
  PaintedImpl::Enable(enable, remember);
  if (GetHandle() && before != static_cast<bool>(GetCWnd()->IsWindowEnabled())) EnableChildren();
}

// Disabling takes the focus away, and a handler of that may destroy the container.
void ContainerImpl::EnableChildren() {
  const std::vector<BaseGUIObject*> children = Children();
  for (BaseGUIObject* child : children) {
    if (!GetHandle()) return;
    if (child->GetPlatformHandle()) child->Enable(IsOpen(), false);
  }
}

void ContainerImpl::OnChildCreated(BaseGUIObject& child) {
  if (!IsOpen()) child.Enable(false, false);
}

void ContainerImpl::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  painter.FillRect(client, palette.background);
}

}  // namespace Wexa
