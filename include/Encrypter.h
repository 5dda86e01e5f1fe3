#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "WexaExport.h"

namespace Wexa {
class Translator;
}

// Reads encrypted language and form files: an RC4-encrypted UTF-8 text followed by the MD5 digest
// of the encrypted bytes. Any thread.
class WEXA_API Encrypter {
 public:
  struct MD5Context {
    std::uint32_t total[2];  // bytes so far, the low word first
    std::uint32_t state[4];
    unsigned char buffer[64];
  };

  // The decrypted text; empty when the file cannot be read, is damaged, plain or not UTF-8.
  static std::wstring ReadAndDecryptFile(const std::wstring& path);

 private:
  friend struct EncrypterAccess;
  friend class Wexa::Translator;

  // The bytes of the decrypted text, UTF-8 or not; empty as above.
  static std::string ReadAndDecryptBytes(const std::wstring& path);
  // The same for the bytes of a file.
  static std::string DecryptBytes(std::string bytes);
  // Decrypts in place; the digest is that of the encrypted bytes.
  static void DecryptAndDigest(unsigned char* data, unsigned int length, unsigned char digest[16]);

  static void MD5Start(MD5Context* context);
  static void MD5Update(MD5Context* context, const unsigned char* input, unsigned int length);
  static void MD5Process(MD5Context* context, const unsigned char block[64]);
  static void MD5Finish(MD5Context* context, unsigned char digest[16]);
  static void MD5Generate(unsigned char* input, unsigned int length, unsigned char digest[16]);
  // Encrypts, or decrypts what is encrypted.
  static void RC4CryptBlock(std::vector<unsigned char>& data);

  static const unsigned char md5_padding_[64];
};
