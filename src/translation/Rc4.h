#pragma once

#include <array>
#include <string_view>
#include <utility>
#include <vector>

namespace Wexa {

// The state of an RC4 stream. The entries are bytes, kept in words, which processors store and load
// again faster.
using Rc4Permutation = std::array<unsigned, 256>;

// The permutation a stream starts with, for a key of at least one byte.
Rc4Permutation ScheduleRc4Key(std::string_view key);

// The bytes of an RC4 stream, one after the other. The indexes stay in registers because the
// permutation, which must outlive the stream, is not part of it.
class Rc4Stream {
 public:
  explicit Rc4Stream(Rc4Permutation& permutation) : s_(permutation.data()) {}

  unsigned char Next() {
    const unsigned a = s_[++i_];
    j_ = static_cast<unsigned char>(j_ + a);
    const unsigned b = std::exchange(s_[j_], a);
    s_[i_] = b;
    return static_cast<unsigned char>(s_[static_cast<unsigned char>(a + b)]);
  }

 private:
  unsigned* s_;
  unsigned char i_ = 0;  // both wrap around at 256
  unsigned char j_ = 0;
};

// Encrypts the bytes in place; the same again decrypts them.
void Rc4(std::vector<unsigned char>& data, std::string_view key);

}  // namespace Wexa
