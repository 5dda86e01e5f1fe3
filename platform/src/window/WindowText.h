#pragma once

#include "window/WindowObject.h"

namespace core {

// The text that the core keeps for a window: default answers to WM_SETTEXT and WM_GETTEXT.
LRESULT StoreText(Window& window, LPARAM text);
LRESULT CopyText(const Window& window, WPARAM count, LPARAM buffer);

}  // namespace core
