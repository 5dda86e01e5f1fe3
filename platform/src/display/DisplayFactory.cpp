#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "display/Display.h"
#include "display/offscreen/OffscreenDisplay.h"
#include "display/x11/X11Display.h"
#include "graphics/ScreenProbe.h"
#include "platform/Font.h"
#include "platform/SystemColors.h"

namespace display {
namespace {

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

// WEXA_DPI, or 0 where it says nothing.
int WishedDpi() {
  constexpr int kSmallest = 48, kLargest = 960;
  const int dpi = std::atoi(Variable("WEXA_DPI").c_str());
  return dpi <= 0 ? 0 : std::clamp(dpi, kSmallest, kLargest);
}

std::unique_ptr<Display> OpenOffscreen() {
  const int dpi = WishedDpi();
  return std::make_unique<OffscreenDisplay>(dpi ? dpi : 96);
}

std::unique_ptr<Display> OpenWhatIsThere() {
  if (Variable("DISPLAY").empty()) return OpenOffscreen();
  try {
    return OpenX11Display();
  } catch (const std::runtime_error&) {
    return OpenOffscreen();
  }
}

std::unique_ptr<Display> Open() {
  const std::string wish = Variable("WEXA_DISPLAY");
  if (wish.empty()) return OpenWhatIsThere();
  if (wish == "offscreen") return OpenOffscreen();
  if (wish == "x11") return OpenX11Display();
  throw std::runtime_error("WEXA_DISPLAY is \"" + wish + "\"; known are offscreen and x11.");
}

// Never destroyed at exit: windows that outlive main may still let go of their surfaces.
std::unique_ptr<Display>& Instance() {
  static auto& instance = *new std::unique_ptr<Display>;
  return instance;
}

// Whoever asks for the resolution or the colours first opens the display.
[[maybe_unused]] const bool probes = [] {
  SetScreenProbe([] { Current(); });
  return true;
}();

}  // namespace

Display& Current() {
  if (!Instance()) SetCurrent(Open());
  return *Instance();
}

void SetCurrent(std::unique_ptr<Display> display) {
  Instance() = std::move(display);
  if (!Instance()) return;
  SetScreenDpi(Instance()->Dpi());
  SetDesktopScheme(Instance()->Scheme());
}

}  // namespace display
