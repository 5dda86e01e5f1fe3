#include <algorithm>

#include "platform/Font.h"

namespace {

constexpr int kUnitsPerInch = 96;

int& ScreenDpi() {
  static int dpi = kUnitsPerInch;
  return dpi;
}

}  // namespace

int GetScreenDpi() {
  return ScreenDpi();
}

void SetScreenDpi(int dpi) {
  ScreenDpi() = std::max(dpi, 1);
}

int ScaleUnits(int units) {
  return static_cast<int>(units *
                          (std::max(GetScreenDpi(), kUnitsPerInch) / double{kUnitsPerInch}));
}
