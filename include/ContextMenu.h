#pragma once

#include "WexaExport.h"

namespace Wexa {

// The menu of a widget: shown at the pointer when the user asks for it (see
// BaseGUIObject::InsertContextMenu) and the event procedure does not take the request.
class WEXA_API ContextMenu {
 public:
  ContextMenu() = default;
  ContextMenu(const ContextMenu&) = delete;
  ContextMenu& operator=(const ContextMenu&) = delete;
  virtual ~ContextMenu();

  // Shows the menu at a point of the screen and lets the user choose.
  virtual void Show(int x, int y) = 0;
  // Shows it at the pointer; does nothing for false.
  virtual void Show(bool show);
};

}  // namespace Wexa
