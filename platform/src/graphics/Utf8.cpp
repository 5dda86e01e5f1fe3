#include "graphics/Utf8.h"

#include <utf8.h>

#include <iterator>

namespace {

constexpr char32_t kReplacement = 0xFFFD;

// NUL ends a text for pango and is replaced too.
char32_t Valid(wchar_t c) {
  auto code = static_cast<char32_t>(c);
  bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  return code == 0 || code > 0x10FFFF || surrogate ? kReplacement : code;
}

int ByteCount(char32_t code) {
  return code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
}

}  // namespace

std::string ToUtf8(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (wchar_t c : text) utf8::append(Valid(c), std::back_inserter(bytes));
  return bytes;
}

std::vector<int> Utf8Offsets(std::wstring_view text) {
  std::vector<int> offsets{0};
  offsets.reserve(text.size() + 1);
  for (wchar_t c : text) offsets.push_back(offsets.back() + ByteCount(Valid(c)));
  return offsets;
}
