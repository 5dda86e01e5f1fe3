#include "window/CreationHook.h"

#include <utility>

namespace core {
namespace {

CreationHook currentHook = nullptr;

}  // namespace

CreationHook SetCreationHook(CreationHook hook) {
  return std::exchange(currentHook, hook);
}

void RunCreationHook(HWND window) {
  if (currentHook) currentHook(window);
}

}  // namespace core
