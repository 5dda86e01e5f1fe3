#pragma once

#include <string>

#include "platform/Window.h"

namespace core {

struct WindowClass {
  std::wstring name;
  WNDPROC procedure;
  std::size_t extraBytes;
  const wchar_t* cursor;
  MoveInterest moves = MoveInterest::Steps;
  bool paintsFrame = false;
};

// Names are compared without regard to case. Null for an unknown one. Classes are never removed.
const WindowClass* FindClass(const wchar_t* name);

}  // namespace core
