// Any bytes as a list of dropped files.

#include <cstddef>
#include <cstdint>

#include "display/x11/UriList.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  display::x11::FilesOf({reinterpret_cast<const char*>(data), size});
  return 0;
}
