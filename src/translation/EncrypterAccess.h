#pragma once

#include <array>

#include "Encrypter.h"

// The writing side of encrypted files: for the packing tool and for tests.
struct EncrypterAccess {
  using Digest = std::array<unsigned char, 16>;

  static Digest DigestOf(const std::vector<unsigned char>& data) {
    Encrypter::MD5Context context;
    Encrypter::MD5Start(&context);
    Encrypter::MD5Update(&context, data.data(), static_cast<unsigned int>(data.size()));
    Digest digest{};
    Encrypter::MD5Finish(&context, digest.data());
    return digest;
  }
  // What ReadAndDecryptFile turns back into `text`.
  static std::vector<unsigned char> Pack(std::string_view text) {
    std::vector<unsigned char> bytes(text.begin(), text.end());
    PackInPlace(bytes);
    return bytes;
  }
  // The same to the bytes of a text.
  static void PackInPlace(std::vector<unsigned char>& bytes) {
    Encrypter::RC4CryptBlock(bytes);
    const Digest digest = DigestOf(bytes);
    bytes.insert(bytes.end(), digest.begin(), digest.end());
  }
  // The text of a packed file's bytes; empty when they are none.
  static std::string Unpack(std::string bytes) { return Encrypter::DecryptBytes(std::move(bytes)); }
};
