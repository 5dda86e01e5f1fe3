#include "Rc4.h"

#include <array>
#include <numeric>
#include <utility>

namespace Wexa {

namespace {

// Indexes are bytes: they wrap around at 256.
using Byte = unsigned char;
using Permutation = std::array<Byte, 256>;

constexpr Byte Sum(Byte a, Byte b) {
  return static_cast<Byte>(a + b);
}

Permutation ScheduleKey(std::string_view key) {
  Permutation s;
  std::iota(s.begin(), s.end(), Byte{0});
  Byte j = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    j = Sum(j, Sum(s[i], static_cast<Byte>(key[i % key.size()])));
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
    i = Sum(i, 1);
    j = Sum(j, s[i]);
    std::swap(s[i], s[j]);
    byte ^= s[Sum(s[i], s[j])];
  }
}

}  // namespace Wexa
