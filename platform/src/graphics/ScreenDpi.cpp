#include <algorithm>

#include "graphics/ScreenProbe.h"
#include "platform/Font.h"

namespace {

constexpr int kUnitsPerInch = 96;

constinit int screenDpi = 0;  // not known yet

}  // namespace

int GetScreenDpi() {
  if (screenDpi == 0) ProbeScreen();
  return screenDpi ? screenDpi : kUnitsPerInch;
}

void SetScreenDpi(int dpi) {
  screenDpi = std::max(dpi, 1);
}

int ScaleUnits(int units) {
  return static_cast<int>(units *
                          (std::max(GetScreenDpi(), kUnitsPerInch) / double{kUnitsPerInch}));
}
