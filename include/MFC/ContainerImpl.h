#pragma once

#include "MFC/PaintedImpl.h"

namespace Wexa {

// Widgets that hold others: dialog keys enter them.
class ContainerImpl : public PaintedImpl {
 public:
  explicit ContainerImpl(BaseGUIObject* owner);
  // Fills with the background of what the container stands on.
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
};

}  // namespace Wexa
