#include "Text.h"

#include <utf8.h>

#include <iterator>

namespace display::x11 {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;

bool IsCharacter(std::uint32_t c) {
  return c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
}

}  // namespace

std::string ToUtf8(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (const wchar_t unit : text) {
    const auto c = static_cast<std::uint32_t>(unit);
    utf8::append(IsCharacter(c) ? c : kReplacement, std::back_inserter(bytes));
  }
  return bytes;
}

std::u32string FromUtf8(std::string_view bytes) {
  std::string valid;
  utf8::replace_invalid(bytes.begin(), bytes.end(), std::back_inserter(valid), kReplacement);
  std::u32string text;
  utf8::utf8to32(valid.begin(), valid.end(), std::back_inserter(text));
  return text;
}

std::wstring Widen(std::u32string_view text) {
  return {text.begin(), text.end()};
}

std::string ToLatin1(std::wstring_view text) {
  std::string bytes;
  for (const wchar_t unit : text) {
    const auto c = static_cast<std::uint32_t>(unit);
    bytes.push_back(c <= 0xFF ? static_cast<char>(c) : '?');
  }
  return bytes;
}

std::wstring FromLatin1(std::string_view bytes) {
  std::wstring text;
  for (const char byte : bytes) {
    text.push_back(static_cast<wchar_t>(static_cast<unsigned char>(byte)));
  }
  return text;
}

}  // namespace display::x11
