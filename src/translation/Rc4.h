#pragma once

#include <string_view>
#include <vector>

namespace Wexa {

// Encrypts the bytes in place with the RC4 stream for a key of at least one byte; the same again
// decrypts them.
void Rc4(std::vector<unsigned char>& data, std::string_view key);

}  // namespace Wexa
