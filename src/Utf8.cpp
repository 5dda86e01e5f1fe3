#include "Utf8.h"

#include <utf8.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "Utf8Decoding.h"

namespace Wexa {

namespace {

constexpr std::size_t kBlock = 16;

// Throws utf8::exception where no character starts.
char32_t ReadCharacter(const char*& from, const char* end) {
  const auto byte = static_cast<unsigned char>(*from);
  return byte < 0x80 ? (++from, byte) : utf8::next(from, end);
}

bool IsAscii(const char* block) {
  std::uint64_t words[kBlock / sizeof(std::uint64_t)];
  std::memcpy(words, block, kBlock);
  return ((words[0] | words[1]) & 0x8080808080808080) == 0;
}

// Reads the bytes: whole blocks of plain ASCII, and what is between them character by character.
// Throws utf8::exception where they are not well-formed, and leaves `from` there.
template <typename TakeBlock, typename TakeCharacter>
void Decode(const char*& from, const char* end, TakeBlock takeBlock, TakeCharacter takeCharacter) {
  while (from < end) {
    const auto left = static_cast<std::size_t>(end - from);
    if (left >= kBlock && IsAscii(from)) {
      takeBlock(from);
      from += kBlock;
    } else {
      const char* const blockEnd = from + std::min(kBlock, left);
      while (from < blockEnd) takeCharacter(ReadCharacter(from, end));
    }
  }
}

}  // namespace

wchar_t* WidenUtf8(std::string_view bytes, wchar_t* to) {
  const auto takeBlock = [&to](const char* block) {
    for (std::size_t i = 0; i < kBlock; ++i) to[i] = static_cast<wchar_t>(block[i]);
    to += kBlock;
  };
  const char* from = bytes.data();
  Decode(from, from + bytes.size(), takeBlock,
         [&to](auto character) { *to++ = static_cast<wchar_t>(character); });
  return to;
}

std::optional<std::wstring> WidenUtf8(std::string_view bytes) try {
  std::wstring text(bytes.size(), L'\0');
  const wchar_t* const end = WidenUtf8(bytes, text.data());
  text.resize(static_cast<std::size_t>(end - text.data()));
  return text;
} catch (const utf8::exception&) {
  return std::nullopt;
}

std::optional<std::size_t> FindBadUtf8(std::string_view bytes) {
  const char* from = bytes.data();
  try {
    Decode(
        from, from + bytes.size(), [](const char*) {}, [](auto) {});
    return std::nullopt;
  } catch (const utf8::exception&) {
    return static_cast<std::size_t>(from - bytes.data());
  }
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
