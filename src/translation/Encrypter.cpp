#include "Encrypter.h"

#include <algorithm>
#include <exception>
#include <optional>

#include "FileText.h"
#include "Rc4.h"
#include "Utf8.h"

namespace {

constexpr const char* kLibraryKey = "Lumen Quarry Tessel Brandok";
constexpr std::size_t kDigestLength = 16;

std::wstring TextOf(const std::vector<unsigned char>& bytes) {
  return Wexa::WidenUtf8({reinterpret_cast<const char*>(bytes.data()), bytes.size()}).value_or(L"");
}

}  // namespace

void Encrypter::RC4CryptBlock(std::vector<unsigned char>& data) {
  Wexa::Rc4(data, kLibraryKey);
}

std::wstring Encrypter::ReadAndDecryptFile(const std::wstring& path) try {
  auto bytes = Wexa::ReadFile(path);
  if (!bytes || bytes->size() <= kDigestLength) return {};
  const auto length = bytes->size() - kDigestLength;
  auto* data = reinterpret_cast<unsigned char*>(bytes->data());
  unsigned char digest[kDigestLength];
  MD5Generate(data, static_cast<unsigned int>(length), digest);
  if (!std::equal(digest, std::end(digest), data + length)) return {};
  std::vector<unsigned char> payload(data, data + length);
  bytes.reset();
  RC4CryptBlock(payload);
  return TextOf(payload);
} catch (const std::exception&) {
  return {};
}
