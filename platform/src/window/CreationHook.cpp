#include "window/CreationHook.h"

#include <utility>

#include "window/Session.h"

namespace core {

CreationHook SetCreationHook(CreationHook hook) {
  return std::exchange(CurrentSession().creationHook, hook);
}

void RunCreationHook(HWND window) {
  if (const CreationHook hook = CurrentSession().creationHook) hook(window);
}

}  // namespace core
