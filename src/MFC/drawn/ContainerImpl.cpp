#include "MFC/ContainerImpl.h"

#include "BaseGUIObject.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

ContainerImpl::ContainerImpl(BaseGUIObject* owner) : PaintedImpl(owner) {
  Creation().exStyle |= WS_EX_CONTROLPARENT;
}

void ContainerImpl::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  painter.FillRect(client, palette.background);
}

}  // namespace Wexa
