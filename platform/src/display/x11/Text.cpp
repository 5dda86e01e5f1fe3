#include "Text.h"

#include <utf8.h>

#include <iterator>

namespace display::x11 {

std::u32string FromUtf8(std::string_view bytes) {
  constexpr std::uint32_t kReplacement = 0xFFFD;
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
