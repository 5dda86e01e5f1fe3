#include "Rc4.h"

#include <array>
#include <numeric>
#include <utility>

namespace Wexa {

namespace {

// Indexes are bytes: they wrap around at 256. The entries are bytes too, kept in words, which
// processors store and load again faster.
using Byte = unsigned char;
using Permutation = std::array<unsigned, 256>;

Permutation ScheduleKey(std::string_view key) {
  Permutation s;
  std::iota(s.begin(), s.end(), 0u);
  Byte j = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    j = static_cast<Byte>(j + s[i] + static_cast<Byte>(key[i % key.size()]));
    std::swap(s[i], s[j]);
  }
  return s;
}

}  // namespace

void Rc4(std::vector<unsigned char>& data, std::string_view key) {
  Permutation s = ScheduleKey(key);
  Byte i = 0;
  Byte j = 0;
  for (Byte& byte : data) {
    const unsigned a = s[++i];
    j = static_cast<Byte>(j + a);
    const unsigned b = std::exchange(s[j], a);
    s[i] = b;
    byte = static_cast<Byte>(byte ^ s[static_cast<Byte>(a + b)]);
  }
}

}  // namespace Wexa
