#pragma once

#include "window/WindowObject.h"

namespace core {

// Runs the window's subclass chain and its class procedure. 0 for a dead window.
LRESULT Send(Window& window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

template <typename Record>
LPARAM AsParam(Record* record) {
  return reinterpret_cast<LPARAM>(record);
}

}  // namespace core
