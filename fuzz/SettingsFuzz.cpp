// Any bytes as the settings of a desktop.

#include <cstddef>
#include <cstdint>

#include "display/x11/SettingsData.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  display::x11::ReadSettings({reinterpret_cast<const char*>(data), size});
  return 0;
}
