#include "graphics/ScreenDpi.h"

#include <algorithm>
#include <utility>

#include "platform/Font.h"

namespace {

constexpr int kUnitsPerInch = 96;

constinit int screenDpi = 0;  // not known yet
constinit ScreenProbe screenProbe = nullptr;

}  // namespace

void SetScreenProbe(ScreenProbe probe) {
  screenProbe = probe;
}

int GetScreenDpi() {
  if (screenDpi == 0 && screenProbe) std::exchange(screenProbe, nullptr)();
  return screenDpi ? screenDpi : kUnitsPerInch;
}

void SetScreenDpi(int dpi) {
  screenDpi = std::max(dpi, 1);
}

int ScaleUnits(int units) {
  return static_cast<int>(units *
                          (std::max(GetScreenDpi(), kUnitsPerInch) / double{kUnitsPerInch}));
}
