#include "Utf8.h"

#include <utf8.h>

#include <algorithm>

namespace Wexa {

namespace {

constexpr std::size_t kBlock = 16;

// Without branches, so that the compiler can look at all bytes at once.
bool IsAscii(const char* block) {
  unsigned char all = 0;
  for (std::size_t i = 0; i < kBlock; ++i) all |= static_cast<unsigned char>(block[i]);
  return all < 0x80;
}

// Widens blocks of plain ASCII, up to the first other one.
void WidenAscii(const char*& from, const char* end, wchar_t*& to) {
  while (static_cast<std::size_t>(end - from) >= kBlock && IsAscii(from)) {
    for (std::size_t i = 0; i < kBlock; ++i) to[i] = static_cast<wchar_t>(from[i]);
    from += kBlock;
    to += kBlock;
  }
}

}  // namespace

std::optional<std::wstring> WidenUtf8(std::string_view bytes) try {
  std::wstring text(bytes.size(), L'\0');
  const char* from = bytes.data();
  const char* const end = from + bytes.size();
  wchar_t* to = text.data();
  while (from < end) {
    WidenAscii(from, end, to);
    const char* const blockEnd = from + std::min(kBlock, static_cast<std::size_t>(end - from));
    while (from < blockEnd) *to++ = static_cast<wchar_t>(utf8::next(from, end));
  }
  text.resize(static_cast<std::size_t>(to - text.data()));
  return text;
} catch (const utf8::exception&) {
  return std::nullopt;
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
