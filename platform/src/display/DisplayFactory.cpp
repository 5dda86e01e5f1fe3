#include <cstdlib>
#include <stdexcept>
#include <string>

#include "display/Display.h"
#include "display/offscreen/OffscreenDisplay.h"
#include "display/x11/X11Display.h"
#include "graphics/Environment.h"
#include "graphics/ScreenProbe.h"
#include "platform/Font.h"
#include "platform/SystemColors.h"

namespace display {
namespace {

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::unique_ptr<Display> OpenOffscreen() {
  return std::make_unique<OffscreenDisplay>(DpiOfEnvironment().value_or(96));
}

std::unique_ptr<Display> Open() {
  const std::string wish = Variable("WEXA_DISPLAY");
  const bool hasServer = !Variable("DISPLAY").empty();
  if (wish == "x11" || (wish.empty() && hasServer)) return OpenX11Display();
  if (wish == "offscreen" || wish.empty()) return OpenOffscreen();
  throw std::runtime_error("WEXA_DISPLAY is \"" + wish + "\"; known are offscreen and x11.");
}

// Never destroyed at exit: windows that outlive main may still let go of their surfaces.
std::unique_ptr<Display>& Instance() {
  static auto& instance = *new std::unique_ptr<Display>;
  return instance;
}

void (*exchangeTold)() = nullptr;

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

void BeforeExchange(void (*told)()) {
  exchangeTold = told;
}

void SetCurrent(std::unique_ptr<Display> display) {
  if (Instance() && exchangeTold) exchangeTold();
  Instance() = std::move(display);
  if (!Instance()) return;
  SetScreenDpi(Instance()->Dpi());
  SetDesktopScheme(Instance()->Scheme());
}

}  // namespace display
