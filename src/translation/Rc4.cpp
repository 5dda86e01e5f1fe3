#include "Rc4.h"

#include <cstdint>
#include <cstring>
#include <numeric>

namespace Wexa {

namespace {

// Changes eight bytes at once, so that the data is loaded and stored once for all of them.
void CryptWord(unsigned char* bytes, Rc4Stream& stream) {
  unsigned char key[sizeof(std::uint64_t)];
  for (unsigned char& byte : key) byte = stream.Next();
  std::uint64_t keyWord;
  std::uint64_t dataWord;
  std::memcpy(&keyWord, key, sizeof keyWord);
  std::memcpy(&dataWord, bytes, sizeof dataWord);
  dataWord ^= keyWord;
  std::memcpy(bytes, &dataWord, sizeof dataWord);
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
  for (; at + 8 <= data.size(); at += 8) CryptWord(&data[at], stream);
  for (; at < data.size(); ++at) data[at] ^= stream.Next();
}

}  // namespace Wexa
