#pragma once

#include "MFC/PaintedImpl.h"

namespace Wexa {

// Widgets that hold others: dialog keys enter them.
class ContainerImpl : public PaintedImpl {
 public:
  explicit ContainerImpl(BaseGUIObject* owner);
  // What is inside follows, and keeps its own state for later.
  void Enable(bool enable, bool remember) override;
  void OnChildCreated(BaseGUIObject& child) override;
  // Fills with the background of what the container stands on.
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;

 protected:
  // Whether what is inside can be used.
  virtual bool IsOpen() { return GetCWnd()->IsWindowEnabled(); }
  void EnableChildren();
};

}  // namespace Wexa
