// Any bytes as an encrypted file, and as the text of a sound one.

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "Utf8.h"
#include "translation/EncrypterAccess.h"

namespace {

std::wstring Read(const void* bytes, std::size_t size) {
  const int file = memfd_create("encrypted", 0);
  if (write(file, bytes, size) != static_cast<ssize_t>(size)) std::abort();
  const auto text = Encrypter::ReadAndDecryptFile(L"/proc/self/fd/" + std::to_wstring(file));
  close(file);
  return text;
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
