#pragma once

#include <cstdint>

namespace Wexa {

// A local date and time, as date edits read and write it.
struct KvDateTime {
  std::uint16_t year = 1900;
  std::uint16_t month = 1;
  std::uint16_t day = 1;
  std::uint16_t hour = 0;
  std::uint16_t minute = 0;
  std::uint16_t second = 0;

  bool operator==(const KvDateTime&) const = default;
};

}  // namespace Wexa
