#include "MFC/ContainerImpl.h"

#include "BaseGUIObject.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

void PassSkinChange(const std::vector<BaseGUIObject*>& children) {
  for (BaseGUIObject* child : children) child->GetSkinManager().SetColorChangeFlag(true);
}

ContainerImpl::ContainerImpl(BaseGUIObject* owner) : PaintedImpl(owner) {
  Creation().exStyle |= WS_EX_CONTROLPARENT;
}

void ContainerImpl::OnSkinColorsChanged() {
  PaintedImpl::OnSkinColorsChanged();
  PassSkinChange(Children());
}

void ContainerImpl::RefreshSkinColors() {
  if (GetHandle()) GetCWnd()->Invalidate();
}

void ContainerImpl::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  painter.FillRect(client, palette.background);
}

}  // namespace Wexa
