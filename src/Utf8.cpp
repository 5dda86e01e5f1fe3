#include "Utf8.h"

#include <utf8.h>

namespace Wexa {

namespace {

// Without branches, so that the compiler can look at many bytes at once.
bool IsAscii(std::string_view bytes) {
  unsigned char all = 0;
  for (const char byte : bytes) all |= static_cast<unsigned char>(byte);
  return all < 0x80;
}

}  // namespace

std::optional<std::wstring> WidenUtf8(std::string_view bytes) {
  if (IsAscii(bytes)) return std::wstring(bytes.begin(), bytes.end());
  if (utf8::find_invalid(bytes.begin(), bytes.end()) != bytes.end()) return std::nullopt;
  std::wstring text(bytes.size(), L'\0');
  const wchar_t* end = utf8::unchecked::utf8to32(bytes.begin(), bytes.end(), text.data());
  text.resize(static_cast<std::size_t>(end - text.data()));
  return text;
}

std::string NarrowUtf8(std::wstring_view text) {
  constexpr char32_t kReplacement = 0xFFFD;
  std::string bytes;
  bytes.reserve(text.size());
  for (const wchar_t c : text) {
    const auto code = static_cast<char32_t>(c);
    const bool valid = code <= 0x10FFFF && (code < 0xD800 || code >= 0xE000);
    utf8::unchecked::append(valid ? code : kReplacement, std::back_inserter(bytes));
  }
  return bytes;
}

}  // namespace Wexa
