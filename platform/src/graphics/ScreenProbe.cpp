#include "graphics/ScreenProbe.h"

#include <utility>

namespace {

constinit ScreenProbe screenProbe = nullptr;

}  // namespace

void SetScreenProbe(ScreenProbe probe) {
  screenProbe = probe;
}

void ProbeScreen() {
  if (screenProbe) std::exchange(screenProbe, nullptr)();
}
