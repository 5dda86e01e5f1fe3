#include "Encrypter.h"

#include <algorithm>
#include <exception>
#include <optional>

#include "FileText.h"
#include "Md5Block.h"
#include "Rc4.h"
#include "Utf8.h"

namespace {

constexpr const char* kLibraryKey = "Lumen Quarry Tessel Brandok";
constexpr std::size_t kDigestLength = 16;

}  // namespace

void Encrypter::RC4CryptBlock(std::vector<unsigned char>& data) {
  Wexa::Rc4(data, kLibraryKey);
}

// Digest and decryption are two long chains of dependent steps; taken step by step together they
// need about the time of one.
void Encrypter::DecryptAndDigest(unsigned char* data, unsigned int length,
                                 unsigned char digest[16]) {
  using Wexa::md5::kBlockLength;
  auto permutation = Wexa::ScheduleRc4Key(kLibraryKey);
  Wexa::Rc4Stream stream(permutation);
  MD5Context context;
  MD5Start(&context);
  context.total[0] = length - length % kBlockLength;
  const unsigned char* const blocksEnd = data + context.total[0];
  const unsigned char* const end = data + length;
  for (; data < blocksEnd; data += kBlockLength) {
    Wexa::md5::AddBlock(context.state, data, [&](unsigned n) { data[n] ^= stream.Next(); });
  }
  MD5Update(&context, data, length % kBlockLength);
  MD5Finish(&context, digest);
  for (; data < end; ++data) *data ^= stream.Next();
}

std::string Encrypter::ReadAndDecryptBytes(const std::wstring& path) try {
  return DecryptBytes(Wexa::ReadFile(path).value_or(""));
} catch (const std::exception&) {
  return {};
}

std::string Encrypter::DecryptBytes(std::string bytes) {
  if (bytes.size() <= kDigestLength) return {};
  const auto length = bytes.size() - kDigestLength;
  unsigned char digest[kDigestLength];
  DecryptAndDigest(reinterpret_cast<unsigned char*>(bytes.data()),
                   static_cast<unsigned int>(length), digest);
  const auto* stored = reinterpret_cast<const unsigned char*>(bytes.data()) + length;
  if (!std::equal(digest, std::end(digest), stored)) return {};
  bytes.resize(length);
  return bytes;
}

std::wstring Encrypter::ReadAndDecryptFile(const std::wstring& path) try {
  return Wexa::WidenUtf8(ReadAndDecryptBytes(path)).value_or(L"");
} catch (const std::exception&) {
  return {};
}
