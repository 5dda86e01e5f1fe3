#pragma once

#include <cstdint>

namespace Wexa {

// A typographic length; 12 points are one pica. Negative lengths carry their magnitude in both
// fields. WexaUtils converts and normalises.
struct PicaPoint {
  std::int64_t pica = 0;
  double point = 0;
};

}  // namespace Wexa
