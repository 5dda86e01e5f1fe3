// Any bytes as an encrypted file, and as the text of a sound one.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "MemoryFile.h"
#include "Utf8.h"
#include "translation/EncrypterAccess.h"

namespace {

std::wstring Read(const void* bytes, std::size_t size) {
  return Encrypter::ReadAndDecryptFile(MemoryFile(bytes, size).Path());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Read(data, size);
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto packed = EncrypterAccess::Pack(text);
  const auto expected = Wexa::WidenUtf8(text).value_or(L"");
  if (Read(packed.data(), packed.size()) != expected) std::abort();
  return 0;
}
