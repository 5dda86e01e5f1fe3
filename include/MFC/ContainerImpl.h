#pragma once

#include "MFC/PaintedImpl.h"

namespace Wexa {

// Widgets that hold others: their skin changes reach the children, and dialog keys enter them.
class ContainerImpl : public PaintedImpl {
 public:
  explicit ContainerImpl(BaseGUIObject* owner);
  void OnSkinColorsChanged() override;
  void RefreshSkinColors() override;
  // Fills with the background of what the container stands on.
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
};

// Tells the skins and implementations of these widgets that colours changed.
void PassSkinChange(const std::vector<BaseGUIObject*>& children);

}  // namespace Wexa
