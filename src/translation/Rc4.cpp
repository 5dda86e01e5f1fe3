#include "Rc4.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <numeric>

namespace Wexa {

namespace {

using Word = std::uint64_t;

// Where a word in memory has its n-th byte.
constexpr unsigned ShiftOf(unsigned n) {
  return 8 * (std::endian::native == std::endian::little ? n : sizeof(Word) - 1 - n);
}

// Changes eight bytes at once, so that the data is loaded and stored once for all of them.
void CryptWord(unsigned char* bytes, Rc4Stream& stream) {
  Word key = 0;
  for (unsigned n = 0; n < sizeof key; ++n) key |= Word{stream.Next()} << ShiftOf(n);
  Word data;
  std::memcpy(&data, bytes, sizeof data);
  data ^= key;
  std::memcpy(bytes, &data, sizeof data);
}

}  // namespace

Rc4Permutation ScheduleRc4Key(std::string_view key) {
  Rc4Permutation s;
  std::iota(s.begin(), s.end(), 0u);
  unsigned char j = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    j = static_cast<unsigned char>(j + s[i] + static_cast<unsigned char>(key[i % key.size()]));
    std::swap(s[i], s[j]);
  }
  return s;
}

void Rc4(std::vector<unsigned char>& data, std::string_view key) {
  Rc4Permutation permutation = ScheduleRc4Key(key);
  Rc4Stream stream(permutation);
  std::size_t at = 0;
  for (; at + sizeof(Word) <= data.size(); at += sizeof(Word)) CryptWord(&data[at], stream);
  for (; at < data.size(); ++at) data[at] ^= stream.Next();
}

}  // namespace Wexa
