#include "ContextMenu.h"

#include "WexaUtils.h"

namespace Wexa {

ContextMenu::~ContextMenu() = default;

void ContextMenu::Show(bool show) {
  if (!show) return;
  const Point pointer = WexaUtils::GetCursorPosition();
  Show(pointer.x, pointer.y);
}

}  // namespace Wexa
