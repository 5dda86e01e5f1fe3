#pragma once

#include <cstdint>
#include <string>

namespace Wexa {

// A widget's font. Fields that are not set keep what the widget has.
struct FontData {
  std::wstring faceName;    // empty: not set
  double pointSize = -1.0;  // -1: not set
  std::int32_t bold = -1;   // 1 bold, 0 normal, -1 not set; likewise the next two
  std::int32_t italic = -1;
  std::int32_t underline = -1;
  std::int32_t specialFont = 0;  // 1: a vertical or symbol family in the list of system fonts

  bool operator==(const FontData&) const = default;
};

}  // namespace Wexa
