#include "MFC/base/ControlIds.h"

#include <cstdint>

namespace Wexa {

UINT NextControlId() {
  constexpr std::uint16_t kFirst = 3000;
  static std::uint16_t next = kFirst;
  UINT id = next++;
  if (next == 0) next = kFirst;
  return id;
}

}  // namespace Wexa
